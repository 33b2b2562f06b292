// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fishscene.h>

#include <QGraphicsItem>
#include <QSignalBlocker>

#include <fishbone/base/onepass.h>

FishScene::FishScene(QObject *parent)
    : QGraphicsScene(parent)
{
    // Every item but one is nested, and a spatial index holds top-level items only: it would cost
    // each relayout a lookup and never shorten one.
    setItemIndexMethod(NoIndex);
}

FishScene::~FishScene() = default;

void FishScene::drawBackground(QPainter *painter, const QRectF &rect)
{
    m_picture.reset(); // of a picture that was given up
    m_picture = std::make_unique<const OnePass>();
    QGraphicsScene::drawBackground(painter, rect);
}

void FishScene::drawForeground(QPainter *painter, const QRectF &rect)
{
    QGraphicsScene::drawForeground(painter, rect);
    m_picture.reset();
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
