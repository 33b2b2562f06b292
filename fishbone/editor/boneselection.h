// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

class QGraphicsItem;
class QGraphicsScene;
class SpearItem;
class TreeItem;

/** What is selected in the drawing of a scene, and what of it an operation concerns. */
namespace BoneSelection {

/**
 * The selected items: spears below @p head, which may be null, in document order, then the others.
 */
QList<QGraphicsItem *> items(const QGraphicsScene &scene, SpearItem *head);
/** The spear that @p item is or whose text box it is; null for any other and for null. */
SpearItem *spearOf(QGraphicsItem *item);
/** Selects @p spears, as far as @p scene shows them, and nothing else; told once, if at all. */
void select(QGraphicsScene &scene, const QList<SpearItem *> &spears);
/** Selects everything that can be selected, with no report in between. */
void selectAll(QGraphicsScene &scene);
/** What covers the rectangles of @p items, each in its own coordinates. */
QRectF boundsOf(const QList<QGraphicsItem *> &items);
/** Removes the items without a parent item and null pointers. */
void removeTops(QList<QGraphicsItem *> &items);
/** Removes the items that have an ancestor among them; the others keep their order. */
void removeNested(QList<QGraphicsItem *> &items);
/** The subjects that an operation on @p items concerns, each subtree once and without the head. */
QList<TreeItem *> subjects(QList<QGraphicsItem *> items);

} // namespace BoneSelection
