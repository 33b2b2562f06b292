// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QByteArray;

/**
 * Writes @p content to @p fileName, whole or not at all, so that a crash or a full disk never costs
 * the previous content. A link is followed, permissions stay. Where no second file can be made
 * beside the first, because the folder is not writable or the name too long, it is written in
 * place: a full disk leaves the previous content then as well, a crash in the middle does not. A
 * device is always written in place.
 *
 * When @p origin is a file, the content comes from there: nobody gets a right to @p fileName that
 * he does not have to that one, but for its owner.
 *
 * Returns what went wrong; empty when nothing did.
 */
QString replaceFile(const QString &fileName, const QByteArray &content,
                    const QString &origin = QString());
