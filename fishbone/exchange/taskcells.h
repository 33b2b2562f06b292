// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tasktable.h>

#include <QHash>

class TreeItem;

/** Puts the cells of a row into the fields of a subject, and what fits none into its details. */
class TaskCells
{
public:
    using Role = TableMapping::Role;

    TaskCells(const std::vector<TaskTable::Row> &rows, std::size_t firstRow,
              const TableMapping &mapping, TaskTable::Texts texts, ImportedTree &tree);

    /** Whether the table is one that this program writes, whose texts stand as they are. */
    bool isOwn() const { return m_isOwn; }
    /** The columns of that role. */
    QList<int> columnsOf(Role role) const;
    /** The text of a cell. */
    QString text(const TaskTable::Row &row, int column) const;

    /** Takes all cells of @p row but those that make the tree. */
    void apply(const TaskTable::Row &row, TreeItem &subject);

private:
    bool applyCell(Role role, const QString &value, TreeItem &subject, const QString &heading,
                   qint64 line);
    bool applyOwn(const QString &value, TreeItem &subject, const QString &heading) const;
    static bool applyText(Role role, const QString &value, TreeItem &subject);
    static bool applyMark(Role role, const QString &value, TreeItem &subject);
    bool applyNumber(Role role, const QString &value, TreeItem &subject, const QString &heading,
                     qint64 line);
    bool applyRelated(Role role, const QString &value, TreeItem &subject, const QString &heading,
                      qint64 line);
    bool applyDate(Role role, const QString &value, TreeItem &subject);
    bool applyUrl(const QString &value, TreeItem &subject, const QString &heading, qint64 line);
    void keep(const QString &heading, const QString &value);
    void findOrder(const std::vector<TaskTable::Row> &rows, std::size_t firstRow);

    const TableMapping &m_mapping;
    ImportedTree &m_tree;
    const TaskTable::Texts m_texts;
    bool m_isOwn;
    QHash<int, bool> m_dayFirst;                         ///< of columns of dates between slashes
    QHash<QString, std::size_t> m_keptPlaces;            ///< by the headings
    std::vector<std::pair<QString, QStringList>> m_kept; ///< of the row, what no field takes
    int m_column = 0;                                    ///< of the cell
    int m_idColumn;                                      ///< with what people call a subject
    bool m_isShown = false;                              ///< whether the row has that
};
