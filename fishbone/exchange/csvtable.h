// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tasktable.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

class ImportedTree;

/** Tables as text, after RFC 4180. */
namespace CsvTable {

/**
 * The rows of @p text; empty ones are left out. Cells are separated by commas, semicolons or tabs,
 * whichever the first line has most of outside of quotes, or by what a line such as "sep=;" in
 * front of all names. Without any, and with an error, when a quote is wrong.
 */
std::vector<TaskTable::Row> parse(const QString &text, ImportedTree &tree);

/** A line of a table, with its end; @p separator stands between the cells. */
QByteArray line(const QStringList &cells, QChar separator = QLatin1Char(','));

/**
 * @p text in a form that no spreadsheet takes for a formula: an apostrophe is put before what
 * begins like one.
 */
QString guarded(const QString &text);
/** What guarded() was given. */
QString unguarded(const QString &text);

} // namespace CsvTable
