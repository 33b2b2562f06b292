// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slidegroups.h>

#include <fishbone/exchange/slideconnections.h>
#include <fishbone/exchange/slidedevice.h>

namespace {

constexpr int farthest = 200; ///< how many shapes may lie between those of a group

/** Puts the shapes together. */
class Grouping
{
public:
    Grouping(const std::vector<SlideShape> &shapes, const SlideConnections &connections)
        : m_shapes(shapes)
        , m_connections(connections)
        , m_isTaken(shapes.size(), false)
    {
    }

    std::vector<std::vector<int>> groups()
    {
        std::vector<std::vector<int>> all;
        for (int i = 0; i < int(m_shapes.size()); ++i) {
            if (m_isTaken[size_t(i)])
                continue;
            std::vector<int> group{i};
            if (holdsLines(i))
                group = around(i);
            for (const int shape : group)
                m_isTaken[size_t(shape)] = true;
            all.push_back(std::move(group));
        }
        return all;
    }

private:
    const SlideShape &at(int shape) const { return m_shapes[size_t(shape)]; }

    bool holdsLines(int shape) const
    {
        return at(shape).fill.isValid() && !m_connections.sites(shape).empty();
    }

    bool isBone(int shape) const
    {
        return m_connections.start(shape).isAttached() || m_connections.end(shape).isAttached();
    }

    /** The group of @p first; that shape alone when there is no title in it. */
    std::vector<int> around(int first) const
    {
        std::vector<int> group{first};
        QRectF bounds = SlideGroups::boundsOf(at(first));
        QRectF others;
        bool hasTitle = false;
        const int end = int(qMin(m_shapes.size(), size_t(first) + farthest));
        for (int i = first + 1; i < end && !isBone(i); ++i) {
            if (m_isTaken[size_t(i)])
                continue;
            const QRectF covered = SlideGroups::boundsOf(at(i));
            // Whatever lies over a shape that stays behind has to stay above it.
            if (!bounds.intersects(covered) || others.intersects(covered)) {
                others |= covered;
                continue;
            }
            group.push_back(i);
            hasTitle = hasTitle || !at(i).text.isEmpty();
            if (at(i).text.isEmpty())
                bounds |= covered;
        }
        return hasTitle ? group : std::vector<int>{first};
    }

    const std::vector<SlideShape> &m_shapes;
    const SlideConnections &m_connections;
    std::vector<bool> m_isTaken;
};

} // namespace

QRectF SlideGroups::boundsOf(const SlideShape &shape)
{
    if (!shape.text.isEmpty())
        return shape.box;
    // A line along an axis covers nothing, and is in the way all the same.
    constexpr double least = 0.5;
    return shape.path.controlPointRect().adjusted(-least, -least, least, least);
}

std::vector<std::vector<int>> SlideGroups::of(const std::vector<SlideShape> &shapes,
                                              const SlideConnections &connections)
{
    return Grouping(shapes, connections).groups();
}
