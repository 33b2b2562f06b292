// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slideconnections.h>

#include <fishbone/exchange/slidedevice.h>

#include <cmath>

namespace {

constexpr double cellSize = 64;

QPoint cellOf(const QPointF &point)
{
    return {int(std::floor(point.x() / cellSize)), int(std::floor(point.y() / cellSize))};
}

QLineF straightOf(const SlideShape &shape)
{
    return {QPointF(shape.path.elementAt(0)), QPointF(shape.path.elementAt(1))};
}

bool isFreeform(const SlideShape &shape)
{
    return shape.text.isEmpty() && shape.path.elementCount() > 2;
}

/** What is within reach of @p point. */
QRectF around(const QPointF &point)
{
    constexpr double reach = SlideConnections::reach;
    return {point.x() - reach, point.y() - reach, 2 * reach, 2 * reach};
}

bool touchesFreeform(const SlideShape &shape, const QPointF &point)
{
    return shape.path.controlPointRect().intersects(around(point)) &&
           (shape.path.contains(point) || shape.path.intersects(around(point)));
}

bool touchesLine(const QLineF &line, const QPointF &point)
{
    const QPointF direction = line.p2() - line.p1();
    const double length = QPointF::dotProduct(direction, direction);
    const double along =
        length > 0 ? QPointF::dotProduct(point - line.p1(), direction) / length : 0.0;
    const QPointF nearest = line.p1() + direction * qBound(0.0, along, 1.0);
    return QLineF(nearest, point).length() <= SlideConnections::reach;
}

} // namespace

SlideConnections::SlideConnections(const std::vector<SlideShape> &shapes)
    : m_shapes(shapes)
{
    for (int i = 0; i < int(shapes.size()); ++i) {
        const SlideShape &shape = shapes[size_t(i)];
        if (isLine(shape))
            enterLine(i);
        else if (isFreeform(shape))
            enterFreeform(i);
    }
    for (int i = 0; i < int(shapes.size()); ++i) {
        if (!isLine(shapes[size_t(i)]))
            continue;
        const QLineF line = straightOf(shapes[size_t(i)]);
        const End start = attached(i, line.p1(), line.p2());
        if (start.isAttached())
            m_starts.insert(i, start);
        const End end = attached(i, line.p2(), line.p1());
        if (end.isAttached())
            m_ends.insert(i, end);
    }
}

bool SlideConnections::isLine(const SlideShape &shape)
{
    return shape.text.isEmpty() && shape.path.elementCount() == 2 && !shape.fill.isValid();
}

std::vector<QPointF> SlideConnections::sidesOf(const QRectF &rect)
{
    const QPointF middle = rect.center();
    return {QPointF(middle.x(), rect.top()), QPointF(rect.left(), middle.y()),
            QPointF(middle.x(), rect.bottom()), QPointF(rect.right(), middle.y())};
}

void SlideConnections::enter(int shape, const QPoint &cell)
{
    std::vector<int> &entries = m_cells[Cell(cell.x(), cell.y())];
    if (entries.empty() || entries.back() != shape)
        entries.push_back(shape);
}

void SlideConnections::enterFreeform(int shape)
{
    const QRectF bounds =
        m_shapes[size_t(shape)].path.controlPointRect().adjusted(-reach, -reach, reach, reach);
    const QPoint first = cellOf(bounds.topLeft());
    const QPoint last = cellOf(bounds.bottomRight());
    for (int x = first.x(); x <= last.x(); ++x) {
        for (int y = first.y(); y <= last.y(); ++y)
            enter(shape, QPoint(x, y));
    }
}

/** A slanted line is in far fewer cells than its frame. */
void SlideConnections::enterLine(int shape)
{
    const QLineF line = straightOf(m_shapes[size_t(shape)]);
    const int steps = qMax(1, int(std::ceil(line.length() / cellSize)));
    for (int i = 0; i < steps; ++i) {
        const QRectF part = QRectF(line.pointAt(double(i) / steps), line.pointAt((i + 1.0) / steps))
                                .normalized()
                                .adjusted(-reach, -reach, reach, reach);
        const QPoint first = cellOf(part.topLeft());
        const QPoint last = cellOf(part.bottomRight());
        for (int x = first.x(); x <= last.x(); ++x) {
            for (int y = first.y(); y <= last.y(); ++y)
                enter(shape, QPoint(x, y));
        }
    }
}

const std::vector<int> &SlideConnections::candidatesAt(const QPointF &point) const
{
    static const std::vector<int> none;
    const QPoint cell = cellOf(point);
    const auto found = m_cells.constFind(Cell(cell.x(), cell.y()));
    return found == m_cells.constEnd() ? none : *found;
}

/** The topmost freeform at @p point which does not hold the @p other end too: a line within a shape
 * is drawn on it and does not lead to it. */
SlideConnections::End SlideConnections::attached(int line, const QPointF &point,
                                                 const QPointF &other)
{
    const std::vector<int> &candidates = candidatesAt(point);
    for (auto shape = candidates.crbegin(); shape != candidates.crend(); ++shape) {
        const SlideShape &candidate = m_shapes[size_t(*shape)];
        if (isFreeform(candidate) && touchesFreeform(candidate, point) &&
            !touchesFreeform(candidate, other))
            return addSite(*shape, point);
    }
    for (const int shape : candidates) {
        const SlideShape &candidate = m_shapes[size_t(shape)];
        if (shape == line || !isLine(candidate) || !touchesLine(straightOf(candidate), point))
            continue;
        constexpr int fineness = 16; // what is nearer is the same place
        const QPoint place = (point * fineness).toPoint();
        const Cell key(place.x(), place.y());
        if (!m_jointAt.contains(key)) {
            m_jointAt.insert(key, int(m_joints.size()));
            m_joints.push_back(point);
        }
        End end;
        end.shape = int(m_shapes.size()) + m_jointAt.value(key);
        end.site = sides;
        return end;
    }
    return {};
}

SlideConnections::End SlideConnections::addSite(int shape, const QPointF &point)
{
    std::vector<QPointF> &sites = m_sites[shape];
    if (sites.empty())
        sites = sidesOf(m_shapes[size_t(shape)].path.controlPointRect());
    End end;
    end.shape = shape;
    end.site = int(sites.size());
    sites.push_back(point);
    return end;
}
