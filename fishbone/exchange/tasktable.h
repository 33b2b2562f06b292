// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tablemapping.h>

#include <QStringList>

#include <vector>

class ImportedTree;

/** Tables of tasks, wherever their cells come from. */
namespace TaskTable {

struct Row
{
    QStringList cells;
    qint64 line = 0; ///< where it begins
    int indent = 0;  ///< the depth that the program shows it at, where there is such a thing
};

/** The first of @p rows that holds headings among which is one of titles; -1 when none does. */
int headerOf(const std::vector<Row> &rows);

/** What the columns of @p rows stand for, and the first rows; without columns when there is no
 * heading of titles. */
TableMapping mappingOf(const std::vector<Row> &rows);

/** Whether texts have an apostrophe in front that keeps spreadsheets from taking them for formulas.
 */
enum class Texts { Guarded, AsTheyAre };

/**
 * Adds a subject for each row below the headings. The columns stand for what @p tree says, or else
 * for what their headings tell. A row lies below the one that it names as its parent, or where its
 * level, outline number, indentation or the column of its title puts it.
 */
bool read(const std::vector<Row> &rows, ImportedTree &tree, Texts texts);

} // namespace TaskTable
