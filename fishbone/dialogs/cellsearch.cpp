// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/cellsearch.h>

#include <QAbstractItemModel>
#include <QString>

#include <vector>

QList<QPersistentModelIndex> cellsWith(const QAbstractItemModel &model, int column,
                                       const QString &text, Qt::MatchFlags flags,
                                       Qt::CaseSensitivity sensitivity)
{
    // A walk of its own: any model may be searched, and all that is known of it are indexes.
    struct Step
    {
        QModelIndex parent;
        int next;
        int rows;
    };
    QList<QPersistentModelIndex> found;
    std::vector<Step> path{{QModelIndex(), 0, model.rowCount()}};
    while (!path.empty()) {
        Step &step = path.back();
        if (step.next == step.rows) {
            path.pop_back();
            continue;
        }
        const int row = step.next++;
        const QModelIndex first = model.index(row, 0, step.parent);
        const QModelIndex index = model.index(row, column, step.parent);
        const QString shown = index.data(Qt::DisplayRole).toString();
        const bool isHit = flags.testFlag(Qt::MatchEndsWith) ? shown.endsWith(text, sensitivity)
                                                             : shown.contains(text, sensitivity);
        if (index.isValid() && isHit)
            found.append(index);
        if (const int rows = first.isValid() ? model.rowCount(first) : 0)
            path.push_back({first, 0, rows});
    }
    return found;
}
