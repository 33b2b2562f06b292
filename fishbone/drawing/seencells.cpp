// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/seencells.h>

#include <algorithm>

namespace {
constexpr qreal narrowestCell = 3;
constexpr std::size_t mostCells = 32;
constexpr qreal unseenValue = -1e300;
} // namespace

SeenCells::SeenCells(qreal from, qreal to, std::size_t boxes)
    : m_from(from)
    , m_width(std::max(narrowestCell, (to - from) / qreal(boxes)))
    , m_cells(std::size_t((to - from) / m_width) + 2, unseenValue)
{
}

void SeenCells::add(qreal value, qreal from, qreal to)
{
    const std::size_t last = at(to);
    if (last - at(from) > mostCells)
        return;
    for (std::size_t cell = at(from) + 1; cell < last; ++cell)
        m_cells[cell] = std::max(m_cells[cell], value);
}

bool SeenCells::hides(qreal value, qreal from, qreal to) const
{
    const std::size_t last = at(to);
    if (last - at(from) > mostCells)
        return false;
    return std::all_of(m_cells.begin() + std::ptrdiff_t(at(from)),
                       m_cells.begin() + std::ptrdiff_t(last) + 1,
                       [value](qreal seen) { return seen > value; });
}
