// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that answers what is selected.

#include <fishbone/editor/fisheditor.h>

#include <algorithm>
#include <iterator>

#include <QSet>

#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/itemancestry.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>

namespace {
/// Moves the spears among \a unordered to the front of the result, in pre-order below \a head.
QList<QGraphicsItem *> inDocumentOrder(const QList<QGraphicsItem *> &unordered, SpearItem *head)
{
    QList<QGraphicsItem *> ordered;
    QSet<const QGraphicsItem *> missing(unordered.cbegin(), unordered.cend());
    QList<SpearItem *> pending{head};
    while (!pending.isEmpty() && !missing.isEmpty()) {
        SpearItem *const spear = pending.takeLast();
        if (missing.remove(spear))
            ordered.append(spear);
        const QList<SpearItem *> children = spear->childSpears();
        std::copy(children.crbegin(), children.crend(), std::back_inserter(pending));
    }
    for (QGraphicsItem *item : unordered) {
        if (missing.contains(item))
            ordered.append(item);
    }
    return ordered;
}
} // namespace

QList<QGraphicsItem *> FishEditor::selectedItems() const
{
    const QList<QGraphicsItem *> unordered = m_scene->selectedItems();
    return unordered.count() < 2 || !headSpear() ? unordered
                                                 : inDocumentOrder(unordered, headSpear());
}

bool FishEditor::hasSelection() const
{
    return !m_scene->selectedItems().isEmpty();
}

SpearItem *FishEditor::firstSelectedSpear() const
{
    QGraphicsItem *const first = selectedItems().value(0);
    const auto *const text = qgraphicsitem_cast<TextItem *>(first);
    return qgraphicsitem_cast<SpearItem *>(text ? text->parentItem() : first);
}

QModelIndex FishEditor::firstSelectedSpearIndex() const
{
    return spearIndex(firstSelectedSpear());
}

void FishEditor::excludeCenterSubject(QList<QGraphicsItem *> &items)
{
    const auto isTop = [](const QGraphicsItem *item) { return !item || !item->parentItem(); };
    items.erase(std::remove_if(items.begin(), items.end(), isTop), items.end());
}

void FishEditor::excludeChildSubject(QList<QGraphicsItem *> &items)
{
    const QSet<const QGraphicsItem *> listed(items.cbegin(), items.cend());
    const auto isBelow = [&listed](const QGraphicsItem *item) {
        return hasAncestorIn(item, listed);
    };
    items.erase(std::remove_if(items.begin(), items.end(), isBelow), items.end());
}

void FishEditor::sceneSelectionChanged()
{
    m_selectionChanged = !m_calls.isEmpty();
    if (!m_selectionChanged)
        Q_EMIT copyAvailable(hasSelection());
}
