// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QtGlobal>

#include <atomic>

class QGraphicsItem;

/** The order in which siblings are stacked. */
namespace StackOrder {

/** How many siblings were passed by others so far, in the whole process. */
extern std::atomic<qint64> passed;

/**
 * Stacks @p items, children of @p parent, in their order. Those few that are out of place go where
 * they belong; when that would take longer than all of them together, all go to the end.
 */
void arrange(QGraphicsItem *parent, const QList<QGraphicsItem *> &items);

} // namespace StackOrder
