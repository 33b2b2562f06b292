// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearlook.h>

class SpearTree;

/**
 * How a whole drawing is laid out: after all spears were brought in line with their subjects, sizes
 * are taken and then everything is placed. What a spear itself is asked stands in SpearLook. Both
 * passes are linear but for what packing costs, and do not recurse.
 */
class DrawingLook : public SpearLook
{
public:
    /** Takes the sizes of all spears of @p tree. */
    virtual void size(const SpearTree &tree) const = 0;
    /** Places all spears of @p tree and their companions. */
    virtual void place(const SpearTree &tree) const = 0;
    /** Whether an unchanged tree is placed as it stands: nothing but what SettledDrawing compares
     * has a part in the layout. */
    virtual bool isSettled() const { return true; }
};
