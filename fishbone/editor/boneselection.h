// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QGraphicsItem;
class QGraphicsScene;
class SpearItem;

/// What is selected in the drawing of a scene, and what of it an operation concerns.
namespace BoneSelection {

/// The selected items: spears below \a head, which may be null, in document order, then the others.
QList<QGraphicsItem *> items(const QGraphicsScene &scene, SpearItem *head);
/// The spear that \a item is or whose text box it is; null for any other and for null.
SpearItem *spearOf(QGraphicsItem *item);
/// Selects \a spears, as far as \a scene shows them, and nothing else; told once, if at all.
void select(QGraphicsScene &scene, const QList<SpearItem *> &spears);
/// Removes the items without a parent item and null pointers.
void removeTops(QList<QGraphicsItem *> &items);
/// Removes the items that have an ancestor among them; the others keep their order.
void removeNested(QList<QGraphicsItem *> &items);

} // namespace BoneSelection
