// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;
class QString;

/**
 * Writes @p content to @p fileName, whole or not at all, so that a crash or a full disk never costs
 * the previous content. A link is followed, permissions stay. In a folder that is not writable, and
 * on a device, it is written in place. Returns what went wrong; empty when nothing did.
 */
QString replaceFile(const QString &fileName, const QByteArray &content);
