// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/speartree.h>

#include <fishbone/base/prefetch.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>

namespace {
constexpr std::size_t ahead = 8; ///< spears that are fetched while others are looked at
constexpr std::size_t step = 4;  ///< between a spear, its parts, companions and their insides

/** Fetches what is looked at after @p place of @p count spears, which @p spearAt has. */
template <typename SpearAt>
void fetchAfter(std::size_t place, std::size_t count, SpearAt spearAt)
{
    if (place + 4 * step < count)
        prefetch(&spearAt(place + 4 * step), int(sizeof(SpearItem)));
    if (place + 3 * step < count)
        SpearPasses::prefetchParts(spearAt(place + 3 * step));
    if (place + 2 * step < count)
        SpearPasses::prefetchCompanions(spearAt(place + 2 * step));
    if (place + step < count)
        SpearPasses::prefetchInsides(spearAt(place + step));
}
} // namespace

SpearTree::SpearTree(SpearItem *head)
{
    m_entries.push_back({head, 1, 0, 0});
    for (std::size_t current = 0; current < m_entries.size(); ++current) {
        if (current + ahead < m_entries.size())
            prefetch(m_entries[current + ahead].spear, int(sizeof(SpearItem)));
        if (current + step < m_entries.size())
            SpearPasses::prefetchParts(*m_entries[current + step].spear);
        const QList<SpearItem *> &children = m_entries[current].spear->knownChildSpears();
        m_entries[current].firstChild = int(m_entries.size());
        m_entries[current].childCount = children.count();
        const int level = m_entries[current].level + 1;
        for (SpearItem *child : children)
            m_entries.push_back({child, level, 0, 0});
    }
}

void SpearTree::prefetchAfter(std::size_t place) const
{
    fetchAfter(place, m_entries.size(),
               [this](std::size_t at) -> SpearItem & { return *m_entries[at].spear; });
}

void SpearTree::prefetchMovedAfter(std::size_t place) const
{
    prefetchAfter(place);
    if (place + step < m_entries.size())
        SpearPasses::prefetchListeners(*m_entries[place + step].spear);
}

void SpearTree::prefetchMovedAfter(const std::vector<SpearItem *> &spears, std::size_t place)
{
    fetchAfter(place, spears.size(),
               [&spears](std::size_t at) -> SpearItem & { return *spears[at]; });
    if (place + step < spears.size())
        SpearPasses::prefetchListeners(*spears[place + step]);
}

void SpearTree::prefetchTextsAround(std::size_t place) const
{
    const auto fetch = [this](std::size_t far, std::size_t middle, std::size_t near) {
        if (far < m_entries.size())
            prefetch(m_entries[far].spear, int(sizeof(SpearItem)));
        if (middle < m_entries.size())
            SpearPasses::prefetchParts(*m_entries[middle].spear);
        if (near < m_entries.size())
            SpearPasses::prefetchText(*m_entries[near].spear);
    };
    fetch(place + 3 * step, place + 2 * step, place + step);
    // Before the first one: beyond the last one.
    fetch(place - 5 * step, place - 4 * step, place - 3 * step);
}
