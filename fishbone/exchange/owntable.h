// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QStringList>

#include <functional>
#include <vector>

class TreeItem;

/** The table in which this program writes the fields of subjects, one row each. */
namespace OwnTable {

enum class Kind {
    Text,   ///< guarded against spreadsheets
    Number, ///< as it is
    Date,   ///< ISO 8601
};

struct Column
{
    QLatin1String name;
    QLatin1String key; ///< of the diagram format; the pid stands for the parent in the tree
    Kind kind = Kind::Text;
};

/**
 * All columns, beginning with the uuid, the parent and the title: those with a name of their own,
 * then what else formats exchange, under its key.
 */
const std::vector<Column> &columns();

/** The names of all columns. */
QStringList headings();

/**
 * Calls @p take with the values of each subject from @p head on, parents before children, and its
 * level. Each has a uuid that no other row has, and the one of its parent. Dates are in the form of
 * ISO in UTC.
 */
void walk(const TreeItem &head,
          const std::function<void(const QStringList &values, int level)> &take);

} // namespace OwnTable
