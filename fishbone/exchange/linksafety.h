// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * What a link of a subject may do to whoever follows it: a document comes from anybody, and a file
 * made of it goes to anybody.
 */
namespace LinkSafety {

/** @p link, encoded, when it leads to the web or to mail; else nothing. For files that are handed
 * on and only looked at: one on the own disk or network would be another one there. */
QString webOrMail(const QString &link);

/** Whether a browser that opens @p link would run what is in it. For files whose links are edited
 * further and so are kept as far as they do no harm. */
bool runsCode(const QString &link);

} // namespace LinkSafety
