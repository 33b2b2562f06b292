// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

/**
 * What is seen at least of boxes, in cells of a line: how far those come that cover a whole cell.
 * Most boxes are behind others everywhere, which this finds without sorting them, in a time that
 * grows with their number alone.
 */
class SeenCells
{
public:
    /** For about so many @p boxes between @p from and @p to. */
    SeenCells(qreal from, qreal to, std::size_t boxes);

    /** Notes a box, but for one over many cells: those are few, and looking at them all is not. */
    void add(qreal value, qreal from, qreal to);
    /** Whether nothing is seen of a box, for certain. */
    bool hides(qreal value, qreal from, qreal to) const;

private:
    std::size_t at(qreal place) const { return std::size_t((place - m_from) / m_width); }

    qreal m_from;
    qreal m_width;
    std::vector<qreal> m_cells;
};
