// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

/** What the rows of a table are called, by which others name the one they lie below. */
class TaskRowNames
{
public:
    /** Calls the row @p row by @p name; the first row of a name counts, and an empty one is none.
     */
    void add(const QString &name, int row);
    /** The row that @p reference names in the row @p self with the title @p title; -1 for none. A
     * task may be called like the one it belongs to: its title does not name itself. */
    int find(const QString &reference, int self, const QString &title) const;

private:
    void addOne(const QString &name, int row);

    QHash<QString, int> m_rows;
};
