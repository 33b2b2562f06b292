// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>

/** The words that org-mode has for statuses. */
namespace OrgKeywords {

/** The line of a file that declares the words that statusWord() gives. */
inline const QLatin1String declaration("#+TODO: TODO STARTED HOLD REVIEW | DONE CANCELLED");
/** The word for a status; empty when there is none. */
QString wordOf(int status);
/** The status that a word stands for, -1 for none. */
int statusOf(const QString &word);

} // namespace OrgKeywords
