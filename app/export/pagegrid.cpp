// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/pagegrid.h>

#include <utility>
#include <vector>

namespace {

constexpr double rounding = 1e-6; ///< one part too much would be an empty page

/** From where to where something reaches along a row or a column. */
using Span = std::pair<double, double>;

/** Where the part after the one that ends at @p end begins: so that each of @p texts that is cut
 * there is whole on it, if it has room. */
double following(double end, double length, double overlap, const std::vector<Span> &texts)
{
    constexpr double gap = PageGrid::room / 4; // beside a text
    double begin = end - overlap;
    for (const auto &[from, to] : texts) {
        const bool isCut = from < end && to + gap > end;
        if (isCut && to - from + 3 * gap < length)
            begin = qMin(begin, from - gap);
    }
    return begin;
}

/** Where the parts begin; empty when there would be more than @p limit. */
QList<double> begins(const Span &drawing, double length, double overlap,
                     const std::vector<Span> &texts, int limit)
{
    const double size = drawing.second - drawing.first;
    if (size <= length * (1 + rounding)) // one alone has it in its middle
        return {drawing.first - (length - size) / 2};
    QList<double> found{drawing.first};
    while (found.constLast() + length < drawing.second - length * rounding) {
        if (found.size() >= limit)
            return {};
        found.append(following(found.constLast() + length, length, overlap, texts));
    }
    found.last() = drawing.second - length; // which leaves no paper empty
    return found;
}

std::vector<Span> spans(const QList<QRectF> &rects, Qt::Orientation orientation)
{
    std::vector<Span> all;
    all.reserve(std::size_t(rects.size()));
    for (const QRectF &rect : rects)
        all.push_back(orientation == Qt::Horizontal ? Span(rect.left(), rect.right())
                                                    : Span(rect.top(), rect.bottom()));
    return all;
}

} // namespace

PageGrid::PageGrid(const QRectF &drawing, const QSizeF &part, double overlap,
                   const QList<QRectF> &texts, int limit)
    : m_part(part)
{
    if (drawing.isEmpty() || !(part.width() > 2 * overlap && part.height() > 2 * overlap))
        return;
    m_lefts = begins({drawing.left(), drawing.right()}, part.width(), overlap,
                     spans(texts, Qt::Horizontal), limit);
    m_tops = begins({drawing.top(), drawing.bottom()}, part.height(), overlap,
                    spans(texts, Qt::Vertical), limit);
    if (count() > limit)
        m_lefts.clear();
}

QRectF PageGrid::part(int number) const
{
    return QRectF(QPointF(m_lefts.at(number % columns()), m_tops.at(number / columns())), m_part);
}

QList<QRectF> PageGrid::parts() const
{
    QList<QRectF> all;
    for (int number = 0; number < count(); ++number)
        all.append(part(number));
    return all;
}

QRectF PageGrid::own(int number) const
{
    QRectF rect = part(number);
    const int column = number % columns();
    const int row = number / columns();
    if (column + 1 < columns())
        rect.setRight(m_lefts.at(column + 1));
    if (row + 1 < rows())
        rect.setBottom(m_tops.at(row + 1));
    return rect;
}
