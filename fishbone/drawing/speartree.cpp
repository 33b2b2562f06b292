// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/speartree.h>

#include <fishbone/items/spearitem.h>

SpearTree::SpearTree(SpearItem *head)
{
    m_entries.push_back({head, 1, 0, 0});
    for (std::size_t current = 0; current < m_entries.size(); ++current) {
        const QList<SpearItem *> &children = m_entries[current].spear->knownChildSpears();
        m_entries[current].firstChild = int(m_entries.size());
        m_entries[current].childCount = children.count();
        const int level = m_entries[current].level + 1;
        for (SpearItem *child : children)
            m_entries.push_back({child, level, 0, 0});
    }
}
