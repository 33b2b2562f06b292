// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>

/** Texts in outlines of org-mode. */
namespace OrgText {

/** The properties that hold exactly what a heading or the text below it cannot. */
inline const QLatin1String titleProperty("fishbone_title");
inline const QLatin1String detailProperty("fishbone_detail");

/** Whether @p title stands exactly as it is in a heading. */
bool isPlainTitle(const QString &title);
/** Whether @p detail stands exactly as it is below a heading. */
bool isPlainDetail(const QString &detail);

/** @p text as the value of a property: in quotes with the escapes of JSON where it needs them. */
QString quoted(const QString &text);
/** What quoted() was given; other values stay. */
QString unquoted(const QString &value);

/** A line of text without the comma that keeps it from being taken for a heading. */
QString uncovered(const QString &line);

} // namespace OrgText
