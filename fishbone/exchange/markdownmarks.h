// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QChar>
#include <QString>

/** What the lines of Markdown begin with. */
namespace MarkdownMarks {

/** Whether @p text is a line across the page. */
bool isRule(const QString &text);
/** The level of the heading above an underline, 0 when the line is none. */
int underlineLevel(const QString &text);
/** The level of a heading, 0 when the line is none. */
int headingLevel(const QString &text);
/** The text of a heading without the marks around it. */
QString headingText(const QString &heading, int level);
/** The length of the mark in front of a list item, 0 when the line is none. */
int itemMarkLength(const QString &text);
/** The length of the mark that begins a block of code, 0 when the line begins none. */
int fenceLength(const QString &text);

/** The length of the box of a task, "[x] ", that a title begins with; 0 when there is none. */
int boxLength(const QString &title);
/** The status that the mark in a box stands for. */
int statusOfBox(QChar mark);
/**
 * The length of the number of an issue that the title of a task begins with, "#12" or
 * "group/project!12", blanks behind it left out; 0 when there is none.
 */
int issueLength(const QString &title);

/** The mark in the box of a task with that status; null when none says it. */
QChar boxOfStatus(int status);

} // namespace MarkdownMarks
