// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <fishbone/items/spearpointer.h>

class FishModel;
class SelectionHold;
class TreeItem;

/**
 * Gives a spear to every subject below @p parent that lacks one, unless the one above it has none.
 * What is below a subject that has one already is left alone. The new spears are children of their
 * parent's spear and laid out later.
 *
 * The spears of the children stand in row order afterwards, when those that did not are the new
 * ones and those of @p moved.
 */
void generateMissingSpears(const FishModel &model, TreeItem *parent,
                           const QList<TreeItem *> &moved = {});

/** Deletes the spears of @p subject and of all below it; @p hold tells of the selection later. */
void deleteSpears(TreeItem *subject, SelectionHold &hold);

/**
 * Brings the spear of a subject that has moved below the spear of its parent, in any place among
 * the others. The spear of a subject that is not drawn any more is deleted. One that heads a
 * drawing of its own stays there, without subjects once they are drawn elsewhere.
 *
 * @p former is the spear before the move. Who heard of the move may have drawn the subject anew
 * already; the former spear is deleted then. @p hold tells of the selection later.
 */
void moveSpear(TreeItem *subject, const SpearPointer &former, SelectionHold &hold);
