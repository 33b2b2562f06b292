// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QList>

class SpearItem;

/**
 * The spears of a drawing, breadth-first with the head in front: parents before their children, and
 * these in a row. The tree is walked once, on construction; spears that come later are not noticed.
 */
class SpearTree
{
public:
    struct Entry
    {
        SpearItem *spear;
        int level;      ///< of the spear's children: 1 for the main bones
        int firstChild; ///< position of the first child's entry; the others follow it
        int childCount;
    };

    explicit SpearTree(SpearItem *head);

    const std::vector<Entry> &entries() const { return m_entries; }
    /**
     * Has the processor fetch what a pass that goes forwards through the entries looks at a few
     * entries after @p place: the spears themselves, nearer ones with their parts, then with their
     * companions, and what the toolkit keeps of these.
     */
    void prefetchAfter(std::size_t place) const;
    /** The same where spears and companions are moved, which those are told who listen. */
    void prefetchMovedAfter(std::size_t place) const;
    /** The same for a pass through @p spears, which are some of the tree in another order. */
    static void prefetchMovedAfter(const std::vector<SpearItem *> &spears, std::size_t place);
    /** The same on both sides of @p place where spears and text boxes alone are looked at. */
    void prefetchTextsAround(std::size_t place) const;

    const Entry &head() const { return m_entries.front(); }
    const Entry &child(const Entry &parent, int row) const
    {
        return m_entries[std::size_t(parent.firstChild + row)];
    }

private:
    std::vector<Entry> m_entries;
};
