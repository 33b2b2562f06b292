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
    const Entry &head() const { return m_entries.front(); }
    const Entry &child(const Entry &parent, int row) const
    {
        return m_entries[std::size_t(parent.firstChild + row)];
    }

private:
    std::vector<Entry> m_entries;
};
