// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QHash>
#include <QLineF>
#include <QPen>
#include <QSvgRenderer>

class QGraphicsLineItem;
class QGraphicsSvgItem;
class QGraphicsTextItem;
class SpearItem;

/** A picture of a bone. */
struct IconPlan
{
    QString file;
    QPointF position;
    bool isVisible;
};

/** What can be seen of a bone, and where it hangs. */
struct BonePlan
{
    int parent; ///< position in the plan, before the bone's own; -1 for the head
    QString title;
    QString toolTip;
    QLineF line;
    QPen pen;
    QFont font;
    QColor textColor;
    QPointF textPosition;
    qreal textRotation;
    bool isVisible;
    std::vector<IconPlan> icons;
};

/** Bones level by level, every parent before its children. */
using DrawingPlan = std::vector<BonePlan>;

/** What the spears from @p head down show. */
DrawingPlan planOf(SpearItem *head);

/**
 * The same drawing with the toolkit's items alone: for every bone a QGraphicsLineItem below that
 * of its parent, with a QGraphicsTextItem and a QGraphicsSvgItem a picture as its children. Each
 * picture file has one renderer. The scene uses no index, as that is the fastest with nested
 * items.
 */
class BareDrawing
{
public:
    explicit BareDrawing(const DrawingPlan &plan);

    QGraphicsScene &scene() { return m_scene; }
    QGraphicsView &view() { return m_view; }

    /** Makes all items of the plan; the scene is empty before. */
    void build();
    /** Gives the items the places of @p plan, which has the same bones. */
    void place(const DrawingPlan &plan);
    void clear();

private:
    struct Bone
    {
        QGraphicsLineItem *line;
        QGraphicsTextItem *text;
        std::vector<QGraphicsSvgItem *> icons;
    };

    const DrawingPlan &m_plan;
    std::vector<Bone> m_bones;
    QHash<QString, QSvgRenderer *> m_renderers;
    QObject m_owner; ///< of the renderers, which live longer than the scene
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};
