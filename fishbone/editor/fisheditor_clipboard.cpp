// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that copies subjects: its copy buffer and the payloads of drags.

#include <fishbone/editor/fisheditor.h>

#include <QMimeData>

#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/subjectsnapshot.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

bool FishEditor::hasClipBoardData() const
{
    return !m_d->copyBuffer.isEmpty();
}

void FishEditor::setPasteAsNew(bool pasteAsNew)
{
    m_d->pasteAsNew = pasteAsNew;
}

void FishEditor::copyItemToClipBoard()
{
    QJsonObject objects;
    selectedObjects(objects);
    storeCopy(objects);
}

void FishEditor::storeCopy(const QJsonObject &objects)
{
    m_d->copyBuffer = objects;
    Q_EMIT clipBoardAvailable(hasClipBoardData());
}

void FishEditor::selectedObjects(QJsonObject &objects) const
{
    saveObjects(objects, selectedItems());
}

/// The subjects that an operation on \a items concerns, each subtree once and without the head.
QList<TreeItem *> FishEditor::subjectsOf(QList<QGraphicsItem *> items)
{
    excludeCenterSubject(items);
    excludeChildSubject(items);
    QList<TreeItem *> subjects;
    for (const QGraphicsItem *item : qAsConst(items)) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear && spear->modelIndex().isValid())
            subjects.append(spear->treeItem());
    }
    return subjects;
}

void FishEditor::saveObjects(QJsonObject &objects, const QList<QGraphicsItem *> &items) const
{
    objects = SubjectSnapshot::of(subjectsOf(items));
}

TreeItem *FishEditor::treeItemFromMimeData(const QMimeData *mimeData) const
{
    const FishModel *const model = fishModel();
    if (!model || !mimeData || !mimeData->hasFormat(QStringLiteral("QModelIndexList")))
        return nullptr;
    const QModelIndexList indexes = model->indexList(mimeData);
    return indexes.isEmpty() ? nullptr : model->getTreeItem(indexes.last());
}

void FishEditor::insertItem(const QModelIndex &index, QAbstractItemModel *model,
                            const QModelIndex &parent)
{
    Q_UNUSED(index)
    Q_UNUSED(model)
    Q_UNUSED(parent)
}

bool FishEditor::pasteItemFromClipBoard()
{
    return false;
}
