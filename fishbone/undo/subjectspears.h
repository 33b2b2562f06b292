// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class FishModel;
class TreeItem;

/**
 * Gives a spear to every subject below @p parent that lacks one, unless the one above it has none.
 * What is below a subject that has one already is left alone. The spears of the children stand in
 * row order afterwards; the new ones are children of their parent's spear and laid out later.
 */
void generateMissingSpears(const FishModel &model, TreeItem *parent);

/** Deletes the spears of @p subject and of everything below it. */
void deleteSpears(TreeItem *subject);

/**
 * Brings the spear of a subject that has moved to where the subject stands now: last among the
 * children of its parent's spear. The spear of a subject that is not drawn any more is deleted. One
 * that heads a drawing of its own stays there, without subjects once they are drawn elsewhere.
 */
void moveSpear(TreeItem *subject);
