// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearitem.h>

/**
 * The steps of a layout that goes over all spears of a drawing, pass by pass. Whoever has one spear
 * alone calls SpearItem::initData() and SpearItem::updatePosition(), which take these together.
 */
class SpearPasses
{
public:
    /**
     * Brings everything of @p spear that no layout computes in line with its subject, its style and
     * its state.
     */
    static void refresh(SpearItem &spear, int direction) { spear.refresh(direction); }
    /** Has the processor fetch the parts of @p spear that refresh() looks at, some bones ahead. */
    static void prefetchParts(const SpearItem &spear) { spear.prefetchParts(); }
    /** Then what these keep apart. */
    static void prefetchInsides(const SpearItem &spear) { spear.prefetchInsides(); }
    /** And what they keep of those who hear of their positions. */
    static void prefetchListeners(const SpearItem &spear) { spear.prefetchListeners(); }
    /** The same for who looks at the text box alone. */
    static void prefetchText(const SpearItem &spear) { spear.prefetchText(); }
    /** Forgets offset and child sizes. */
    static void begin(SpearItem &spear) { spear.beginLayout(); }
    /** Sets the line from that of @p parent, which is null for the head, and places companions. */
    static void place(SpearItem &spear, SpearItem *parent) { spear.place(parent); }
};
