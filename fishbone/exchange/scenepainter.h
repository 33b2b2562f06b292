// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

#include <functional>
#include <utility>

class QGraphicsItem;
class QGraphicsScene;
class QPainter;

/** What a scene shows. */
struct SceneExtent
{
    QRectF rect;                     ///< what the visible items cover
    int items = 0;                   ///< how many items are painted
    bool isPlain = true;             ///< every item paints itself and does nothing to others
    QList<QGraphicsItem *> topLevel; ///< the items without a parent, the undermost last
};

/** Looks at all items of @p scene. Linear, without recursion. */
SceneExtent extentOf(const QGraphicsScene &scene);

/**
 * Paints the items of a scene as QGraphicsScene::render() does, but without the buttons of bones,
 * and one by one, so that somebody can follow and end it. A scene with effects, clipping items and
 * the like is not plain: the scene paints it in one go.
 */
class ScenePainter
{
public:
    /** Is told how many items are done; false ends the painting. */
    using Goes = std::function<bool(int done)>;

    /** Paints what @p scene shows, of which @p extent tells and lives on; the part @p source into
     * @p target. */
    ScenePainter(QGraphicsScene &scene, const SceneExtent &extent, const QRectF &source,
                 const QRectF &target);

    /** Is told which item is painted next. */
    using Begins = std::function<void(const QGraphicsItem &item)>;
    /** Has @p begins follow the painting; not of a scene that is not plain. */
    void setObserver(Begins begins) { m_begins = std::move(begins); }
    /** Paints only every so many items: a sample of the scene. */
    void setStep(int step) { m_step = step; }

    /** Paints what touches the part, and asks @p goes every now and then. False when that ended it.
     */
    bool paint(QPainter &painter, const Goes &goes) const;

private:
    bool paintItems(QPainter &painter, const Goes &goes) const;

    QGraphicsScene &m_scene;
    const SceneExtent &m_extent;
    QRectF m_source;
    QRectF m_target;
    Begins m_begins;
    int m_step = 1;
};
