// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

/**
 * How a drawing is spread over pages that are put together: rows and columns of parts that overlap.
 * No text is cut without being whole on another page, as far as a page has room for it.
 */
class PageGrid
{
public:
    /** By how much a page has to be larger than a text so that it is whole there, in the units of
     * the drawing. */
    static constexpr double room = 8;

    /** No page. */
    PageGrid() = default;
    /** Spreads @p drawing over parts of @p part units, which overlap by @p overlap at least, and
     * where one of @p texts would be cut by as much as that takes. At most @p limit pages; none
     * when that is too few. */
    PageGrid(const QRectF &drawing, const QSizeF &part, double overlap, const QList<QRectF> &texts,
             int limit);

    int columns() const { return m_lefts.size(); }
    int rows() const { return m_tops.size(); }
    /** The number of pages. */
    int count() const { return columns() * rows(); }
    /** What page @p number shows, counted from 0 row by row. */
    QRectF part(int number) const;
    /** All parts, row by row. */
    QList<QRectF> parts() const;
    /** What of page @p number neither the page to its right nor the one below repeats. */
    QRectF own(int number) const;

private:
    QSizeF m_part;
    QList<double> m_lefts;
    QList<double> m_tops;
};
