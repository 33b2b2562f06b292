// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fishscene.h>

#include <QGraphicsItem>
#include <QSignalBlocker>

FishScene::FishScene(QObject *parent)
    : QGraphicsScene(parent)
{
    // Every item but one is nested, and a spatial index holds top-level items only: it would cost
    // each relayout a lookup and never shorten one.
    setItemIndexMethod(NoIndex);
}

void FishScene::handleSelectionChanged()
{
    const QSignalBlocker blocker(this);
    QList<QGraphicsItem *> selected = selectedItems();
    if (selected.count() > 1) {
        QGraphicsItem *const dropped =
            selected.first() == m_lastAlone ? selected.first() : selected.last();
        dropped->setSelected(false);
        selected.removeOne(dropped);
    }
    if (!selected.isEmpty())
        m_lastAlone = selected.first();
}
