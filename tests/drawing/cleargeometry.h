// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlayout.h>

#include <QLineF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <array>
#include <cmath>
#include <map>
#include <vector>

/** Finds what is wrong in a layout, on its geometry alone. */
class ClearGeometry
{
public:
    ClearGeometry(const ClearTree &tree, const ClearLayout &layout)
        : m_tree(tree)
        , m_layout(layout)
    {
        for (int index = 0; index < tree.size(); ++index)
            collect(index);
    }

    /** What is wrong, a line each; none when all is well. */
    QStringList faults()
    {
        checkPairs();
        checkBounds();
        checkJoints();
        checkOrder();
        checkHead();
        return m_faults;
    }

    /** Whether @p line passes through @p rect, touching left out. */
    static bool crosses(const QLineF &line, const QRectF &rect)
    {
        const QRectF inner = rect.adjusted(0.01, 0.01, -0.01, -0.01);
        qreal low = 0;
        qreal high = 1;
        const auto clip = [&](qreal start, qreal step, qreal least, qreal most) {
            if (std::abs(step) < 1e-12)
                return start > least && start < most;
            const qreal a = (least - start) / step;
            const qreal b = (most - start) / step;
            low = std::max(low, std::min(a, b));
            high = std::min(high, std::max(a, b));
            return low < high;
        };
        return clip(line.x1(), line.dx(), inner.left(), inner.right()) &&
               clip(line.y1(), line.dy(), inner.top(), inner.bottom());
    }

private:
    struct Part
    {
        int owner;
        QRectF rect;
        const char *what;
    };

    void fault(const QString &text)
    {
        if (m_faults.size() < 20)
            m_faults << text;
    }

    QString name(int index) const
    {
        const QString title = m_tree.at(index).title.left(30);
        return QStringLiteral("%1 \"%2\" below %3")
            .arg(index)
            .arg(title)
            .arg(m_tree.at(index).parent);
    }

    void collect(int index)
    {
        const ClearLayout::Bone &bone = m_layout.bone(index);
        for (int line = 0; line < bone.text->lineCount(); ++line) {
            if (bone.text->lines()[std::size_t(line)].width <= 0)
                continue; // nothing is on it
            const QPointF base = bone.base(line);
            const qreal height = bone.text->font().lineHeight();
            m_parts.push_back({index,
                               QRectF(base.x(), base.y() - bone.text->font().ascent(),
                                      bone.text->lines()[std::size_t(line)].width, height),
                               "text"});
        }
        const auto put = [&](const QRectF &rect, const char *what) {
            if (!rect.isNull())
                m_parts.push_back({index, rect, what});
        };
        // As it is painted behind a cause: beyond both ends of its widest line.
        if (m_tree.at(index).isFilled && bone.level > 1)
            put(bone.titleRect(), "fill");
        put(bone.status, "status");
        put(bone.votes, "votes");
        put(bone.link, "link");
        put(bone.badge, "badge");
        if (bone.level == 1)
            put(bone.box, "box");
    }

    /** The parts in squares of the plane, so that only neighbours are compared. */
    template <typename Visit>
    void forEachNear(const QRectF &rect, Visit visit)
    {
        constexpr qreal square = 128;
        for (int x = int(std::floor(rect.left() / square));
             x <= int(std::floor(rect.right() / square)); ++x) {
            for (int y = int(std::floor(rect.top() / square));
                 y <= int(std::floor(rect.bottom() / square)); ++y)
                visit(m_squares[{x, y}]);
        }
    }

    template <typename Visit>
    static void forEachPiece(const QLineF &line, Visit visit)
    {
        const int pieces = int(line.length() / 100) + 1;
        for (int piece = 0; piece < pieces; ++piece)
            visit(QLineF(line.pointAt(qreal(piece) / pieces),
                         line.pointAt(qreal(piece + 1) / pieces)));
    }

    void checkPairs()
    {
        for (std::size_t i = 0; i < m_parts.size(); ++i) {
            forEachNear(m_parts[i].rect, [&](std::vector<std::size_t> &square) {
                for (const std::size_t other : square)
                    checkPair(m_parts[i], m_parts[other]);
                square.push_back(i);
            });
        }
        for (int index = 1; index < m_tree.size(); ++index) {
            forEachPiece(m_layout.bone(index).line, [&](const QLineF &piece) {
                forEachNear(QRectF(piece.p1(), piece.p2()).normalized(),
                            [&](std::vector<std::size_t> &square) {
                                for (const std::size_t part : square)
                                    checkLine(index, piece, m_parts[part]);
                            });
            });
        }
        checkLines();
    }

    void checkPair(const Part &a, const Part &b)
    {
        const bool isBoxAndText = a.owner == b.owner && (a.what[0] == 'b' || b.what[0] == 'b');
        if (isBoxAndText && m_layout.bone(a.owner).level == 1)
            return; // the box is behind them
        const auto isText = [](const Part &part) { return part.what[0] == 't'; };
        const auto isFill = [](const Part &part) { return part.what[0] == 'f'; };
        if (a.owner == b.owner && ((isText(a) && isFill(b)) || (isFill(a) && isText(b))))
            return;
        const QRectF common = a.rect & b.rect;
        if (common.width() > 0.01 && common.height() > 0.01)
            fault(QStringLiteral("%1 of %2 on %3 of %4")
                      .arg(QLatin1String(a.what), name(a.owner), QLatin1String(b.what),
                           name(b.owner)));
    }

    void checkLine(int index, const QLineF &line, const Part &part)
    {
        if (part.owner == index && (part.what[0] == 'b' || part.what[0] == 'f'))
            return; // the badge of a category sits on its bone, what is filled may end one
        if (crosses(line, part.rect))
            fault(QStringLiteral("line of %1 through %2 of %3")
                      .arg(name(index), QLatin1String(part.what), name(part.owner)));
    }

    /** Lines meet where one branches off the other, and nowhere else. */
    void checkLines()
    {
        constexpr qreal square = 128;
        std::map<std::pair<int, int>, std::vector<std::pair<int, QLineF>>> squares;
        for (int index = 1; index < m_tree.size(); ++index) {
            forEachPiece(m_layout.bone(index).line, [&](const QLineF &piece) {
                const QRectF rect = QRectF(piece.p1(), piece.p2()).normalized();
                for (int x = int(std::floor(rect.left() / square));
                     x <= int(std::floor(rect.right() / square)); ++x) {
                    for (int y = int(std::floor(rect.top() / square));
                         y <= int(std::floor(rect.bottom() / square)); ++y) {
                        auto &here = squares[{x, y}];
                        for (const auto &[other, otherPiece] : here)
                            checkCrossing(index, piece, other, otherPiece);
                        here.emplace_back(index, piece);
                    }
                }
            });
        }
    }

    void checkCrossing(int a, const QLineF &one, int b, const QLineF &two)
    {
        if (a == b || m_tree.at(a).parent == b || m_tree.at(b).parent == a)
            return;
        const qreal sine =
            (one.dx() * two.dy() - one.dy() * two.dx()) / (one.length() * two.length());
        if (std::abs(sine) < 1e-6)
            return; // parallel ones may lie in line with each other
        if (one.intersects(two, nullptr) == QLineF::BoundedIntersection)
            fault(QStringLiteral("line of %1 crosses that of %2").arg(name(a), name(b)));
    }

    void checkBounds()
    {
        const QRectF bounds = m_layout.bounds().adjusted(-0.01, -0.01, 0.01, 0.01);
        for (const Part &part : m_parts) {
            if (!bounds.contains(part.rect))
                fault(QStringLiteral("%1 outside").arg(name(part.owner)));
            if (!m_layout.extent(part.owner).adjusted(-.01, -.01, .01, .01).contains(part.rect))
                fault(QStringLiteral("%1 outside its extent").arg(name(part.owner)));
        }
        for (int index = 1; index < m_tree.size(); ++index) {
            const QLineF line = m_layout.bone(index).line;
            if (!bounds.contains(line.p1()) || !bounds.contains(line.p2()))
                fault(QStringLiteral("line of %1 outside").arg(name(index)));
        }
        if (!bounds.contains(m_layout.head().boundingRect()) ||
            !bounds.contains(m_layout.tail().boundingRect()))
            fault(QStringLiteral("head or tail outside"));
    }

    void checkJoints()
    {
        for (int index = 1; index < m_tree.size(); ++index) {
            const QPointF joint = m_layout.bone(index).line.p1();
            if (m_layout.bone(index).level == 1) {
                if (std::abs(joint.y()) > 0.01)
                    fault(QStringLiteral("%1 not on the backbone").arg(name(index)));
                continue;
            }
            const QLineF parent = m_layout.bone(m_tree.at(index).parent).line;
            const qreal detour = QLineF(parent.p1(), joint).length() +
                                 QLineF(joint, parent.p2()).length() - parent.length();
            if (detour > 0.01)
                fault(QStringLiteral("%1 does not branch off its parent").arg(name(index)));
        }
    }

    /** On each side the children come in row order, from the parent's joint outwards. */
    void checkOrder()
    {
        for (int index = 0; index < m_tree.size(); ++index) {
            std::array<qreal, 2> last{-1, -1};
            for (const int child : m_tree.children(index)) {
                const ClearLayout::Bone &bone = m_layout.bone(child);
                const QPointF start = index == 0 ? QPointF(0, 0) : m_layout.bone(index).line.p1();
                const qreal place = QLineF(start, bone.line.p1()).length();
                const bool side =
                    index == 0 ? bone.line.p2().y() > 0 : bone.side == ClearLabel::Side::Right;
                if (place <= last[side])
                    fault(QStringLiteral("%1 out of order").arg(name(child)));
                last[side] = place;
            }
        }
    }

    /** The lines of the title lie inside the outline with 8 to spare, and nothing else does. */
    void checkHead()
    {
        for (const Part &part : m_parts) {
            const bool isTitle = part.owner == 0 && part.what[0] != 'b';
            for (const QPointF &corner : {part.rect.topLeft(), part.rect.topRight(),
                                          part.rect.bottomLeft(), part.rect.bottomRight()})
                checkCorner(part, corner, isTitle);
            if (!isTitle &&
                (m_layout.head().intersects(part.rect) || m_layout.tail().intersects(part.rect)))
                fault(QStringLiteral("%1 of %2 in head or tail")
                          .arg(QLatin1String(part.what), name(part.owner)));
            if (!isTitle && part.owner && part.rect.top() < 1 && part.rect.bottom() > -1)
                fault(QStringLiteral("%1 on the backbone").arg(name(part.owner)));
        }
    }

    void checkCorner(const Part &part, const QPointF &corner, bool isTitle)
    {
        if (!isTitle)
            return;
        for (int angle = 0; angle < 360; angle += 15) {
            const QPointF near = corner + QLineF::fromPolar(7.8, angle).p2();
            if (!m_layout.head().contains(near)) {
                fault(QStringLiteral("%1 of the head too near to its outline")
                          .arg(QLatin1String(part.what)));
                return;
            }
        }
    }

    const ClearTree &m_tree;
    const ClearLayout &m_layout;
    std::vector<Part> m_parts;
    std::map<std::pair<int, int>, std::vector<std::size_t>> m_squares;
    QStringList m_faults;
};
