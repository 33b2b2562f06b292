// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QLineF>
#include <QPoint>
#include <QPointF>
#include <QRectF>

#include <vector>

struct SlideShape;

/**
 * Which lines of a slide hold on to which of its shapes.
 *
 * An end of a straight line that touches a freeform, which the line leaves with its other end, is
 * attached to that freeform: whoever moves it takes the end along. Where an end touches no freeform
 * but another line, which has no places to attach to, it gets a joint of its own there. Texts have
 * such places only in the middle of their sides and take no part.
 *
 * Works in the units of the scene, in time that is linear in what is drawn.
 */
class SlideConnections
{
public:
    /** What an end of a line is attached to. */
    struct End
    {
        int shape = -1; ///< its index; from the number of shapes on, that of a joint; -1 for none
        int site = 0;   ///< the index among the places of that shape

        bool isAttached() const { return shape >= 0; }
    };

    /** Looks at @p shapes, the undermost first. */
    explicit SlideConnections(const std::vector<SlideShape> &shapes);

    /** Whether @p shape is written as a straight line. */
    static bool isLine(const SlideShape &shape);
    /** How near an end has to be to touch, in units of the scene. */
    static constexpr double reach = 1;

    /** Where the line with the index @p line begins. */
    End start(int line) const { return m_starts.value(line); }
    /** Where the line with the index @p line ends. */
    End end(int line) const { return m_ends.value(line); }
    /** The places at the freeform with the index @p shape to which lines can be attached, those of
     * its sides first; none when no line is. */
    std::vector<QPointF> sites(int shape) const { return m_sites.value(shape); }
    /** The middles of the sides of a shape: top, left, bottom and right, as programs number those
     * of a rectangle. They stand before all others: some programs take the first four places of any
     * shape for these. */
    static std::vector<QPointF> sidesOf(const QRectF &rect);
    static constexpr int sides = 4;
    /** Where ends touch other lines. Each is a shape with sides and one more place, its middle. */
    const std::vector<QPointF> &joints() const { return m_joints; }

private:
    using Cell = QPair<int, int>;

    void enter(int shape, const QPoint &cell);
    void enterFreeform(int shape);
    void enterLine(int shape);
    /** The shapes that may be near @p point. */
    const std::vector<int> &candidatesAt(const QPointF &point) const;
    End attached(int line, const QPointF &point, const QPointF &other);
    End addSite(int shape, const QPointF &point);

    const std::vector<SlideShape> &m_shapes;
    QHash<Cell, std::vector<int>> m_cells;
    QHash<int, End> m_starts;
    QHash<int, End> m_ends;
    QHash<int, std::vector<QPointF>> m_sites;
    std::vector<QPointF> m_joints;
    QHash<Cell, int> m_jointAt; ///< by what is near enough to be one place
};
