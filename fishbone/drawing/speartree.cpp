// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/speartree.h>

#include <fishbone/base/prefetch.h>
#include <fishbone/items/spearitem.h>

namespace {
constexpr std::size_t ahead = 8; ///< spears that are fetched while others are looked at
} // namespace

SpearTree::SpearTree(SpearItem *head)
{
    m_entries.push_back({head, 1, 0, 0});
    for (std::size_t current = 0; current < m_entries.size(); ++current) {
        if (current + ahead < m_entries.size())
            prefetch(m_entries[current + ahead].spear, int(sizeof(SpearItem)));
        const QList<SpearItem *> &children = m_entries[current].spear->knownChildSpears();
        m_entries[current].firstChild = int(m_entries.size());
        m_entries[current].childCount = children.count();
        const int level = m_entries[current].level + 1;
        for (SpearItem *child : children)
            m_entries.push_back({child, level, 0, 0});
    }
}
