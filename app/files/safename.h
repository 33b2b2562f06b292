// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/** @p title as the name of a file on any system, without an ending: in one line, of a bounded
 * length, without what some system has a meaning for; "Untitled" when nothing is left. */
QString safeFileName(const QString &title);
