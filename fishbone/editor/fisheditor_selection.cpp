// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that answers what is selected.

#include <fishbone/editor/fisheditor.h>

#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/spearitem.h>

QList<QGraphicsItem *> FishEditor::selectedItems() const
{
    return BoneSelection::items(*scene(), headSpear());
}

bool FishEditor::hasSelection() const
{
    return !scene()->selectedItems().isEmpty();
}

SpearItem *FishEditor::firstSelectedSpear() const
{
    return BoneSelection::spearOf(selectedItems().value(0));
}

QModelIndex FishEditor::firstSelectedSpearIndex() const
{
    return spearIndex(firstSelectedSpear());
}

void FishEditor::selectSpears(const QList<SpearItem *> &spears)
{
    const Call call(this);
    BoneSelection::select(*scene(), spears);
}

void FishEditor::excludeCenterSubject(QList<QGraphicsItem *> &items)
{
    BoneSelection::removeTops(items);
}

void FishEditor::excludeChildSubject(QList<QGraphicsItem *> &items)
{
    BoneSelection::removeNested(items);
}

void FishEditor::selectAll()
{
    const Call call(this);
    const SelectionSilence silence(scene()); // each report costs a look at all of it
    const QList<QGraphicsItem *> items = scene()->items();
    for (QGraphicsItem *item : items)
        item->setSelected(true);
}

void FishEditor::sceneSelectionChanged()
{
    m_d->selectionChanged = !m_d->calls.isEmpty();
    if (!m_d->selectionChanged)
        Q_EMIT copyAvailable(hasSelection());
}
