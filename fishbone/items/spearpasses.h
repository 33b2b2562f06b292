// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearparts.h>

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
    static void refresh(SpearItem &spear, int direction)
    {
        SpearParts::of(spear).place.refresh(direction);
    }
    /** Brings link icon and status of @p spear in line with its subject. */
    static void updateIcons(SpearItem &spear)
    {
        SpearParts::of(spear).companions.updateStatus();
        SpearParts::of(spear).companions.updateLink();
    }
    /** The status icon of @p spear, null as long as it has shown nothing. */
    static const TaskStatusItem *madeStatus(const SpearItem &spear)
    {
        return SpearParts::of(spear).companions.madeStatus();
    }
    /** Forgets offset and child sizes. */
    static void begin(SpearItem &spear) { SpearParts::of(spear).place.begin(); }
    /** Sets the line from that of @p parent, which is null for the head, and places companions. */
    static void place(SpearItem &spear, SpearItem *parent)
    {
        SpearParts::of(spear).place.setBelow(parent);
    }

    /** Has the processor fetch what @p spear consists of, some bones ahead. */
    static void prefetchParts(const SpearItem &spear) { SpearParts::prefetch(spear); }
    /** Then what refresh() looks at beside it. */
    static void prefetchCompanions(const SpearItem &spear)
    {
        SpearParts::of(spear).prefetchOthers();
    }
    /** Then what these keep apart. */
    static void prefetchInsides(const SpearItem &spear)
    {
        SpearParts::of(spear).companions.prefetchInsides();
    }
    /** And what they keep of those who hear of their positions. */
    static void prefetchListeners(const SpearItem &spear)
    {
        SpearParts::of(spear).companions.prefetchListeners();
    }
    /** The same for who looks at the text box alone. */
    static void prefetchText(const SpearItem &spear)
    {
        SpearParts::of(spear).companions.prefetchText();
    }
};
