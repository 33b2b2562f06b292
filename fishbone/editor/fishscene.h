// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsScene>

#include <memory>

#include <fishbone/fishbone_export.h>

class OnePass;

/**
 * The scene that holds the drawing of one diagram: the head spear is its only top-level item, all
 * others are below it.
 */
class FISHBONE_EXPORT FishScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /** A scene that shows nothing. */
    explicit FishScene(QObject *parent = nullptr);
    ~FishScene() override;

    /** The first view that shows the scene, or null. */
    QGraphicsView *currentGraphicsView() const { return views().value(0); }

public Q_SLOTS:
    /**
     * Thins the selection out, with the scene's signals blocked: a single selected item is
     * remembered; of several, the first is deselected when it is the remembered one, else the
     * last. Nothing in the library connects this.
     */
    void handleSelectionChanged();

protected:
    /**
     * A picture of the scene begins: whatever is missing, such as the file of the global style, is
     * looked for once until drawForeground(), however many bones ask for it. @p rect is in scene
     * coordinates.
     */
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    /** The picture, the part @p rect of it in scene coordinates, is drawn. */
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    std::unique_ptr<const OnePass> m_picture; ///< while one is drawn
    QGraphicsItem *m_lastAlone = nullptr;     ///< only ever compared: the item may be gone
};
