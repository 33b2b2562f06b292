// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/replacement.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <QJsonObject>
#include <QPersistentModelIndex>

namespace {

constexpr int titleColumn = 0;
constexpr int showidColumn = 2;

} // namespace

bool Replacement::isPossible(const QModelIndex &hit)
{
    return hit.column() == titleColumn || hit.column() == showidColumn;
}

QString Replacement::of(const QString &found) const
{
    QString result = found;
    return search.isEmpty() ? found : result.replace(search, text, sensitivity);
}

std::unique_ptr<EditAttributes> Replacement::draft(FishModel *model, const QModelIndexList &hits,
                                                   const Progress &progress) const
{
    // While somebody sees the progress, subjects may go.
    const QList<QPersistentModelIndex> places(hits.cbegin(), hits.cend());
    auto command = std::make_unique<EditAttributes>(model);
    int done = 0;
    for (const QPersistentModelIndex &place : places) {
        if (!progress(done++, int(places.size())))
            return nullptr;
        const QModelIndex hit = place;
        const TreeItem *const subject = hit.isValid() ? model->getTreeItem(hit) : nullptr;
        if (!subject || !isPossible(hit))
            continue;
        const QJsonObject before = EditAttributes::stateOf(*subject);
        TreeItem changed(before);
        changed.setData(hit.column(), of(subject->data(hit.column()).toString()));
        command->add(hit.siblingAtColumn(titleColumn), before, EditAttributes::stateOf(changed));
    }
    return command;
}
