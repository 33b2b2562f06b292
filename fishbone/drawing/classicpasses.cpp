// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of ClassicLook that takes all spears together, and the one that paints.

#include <fishbone/drawing/classiclook.h>

#include <cmath>

#include <QPainter>

#include <fishbone/drawing/classicmarks.h>
#include <fishbone/items/headpictures.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>

namespace {
constexpr double firstOffset = 30.0;      ///< of the first child along its parent
constexpr double secondSideOffset = 60.0; ///< of the first bone on the head's second side
constexpr double minimumAdvance = 30.0;   ///< per child of a level bone
constexpr double textClearance = 10.0;    ///< behind the text that children of direction -1 pass

QColor backboneColor()
{
    return {60, 184, 121, 255};
}

void paintBackbone(QPainter &painter, const SpearItem &header)
{
    const QPointF head = header.line().p1();
    const QPointF tail = header.line().p2();
    if (tail.y() < head.y())
        return;
    const double halfHeight = std::tan(header.backboneAngle()) * (tail.x() - head.x());
    const QPolygonF wedge({tail, head + QPointF(0, halfHeight), head - QPointF(0, halfHeight)});
    painter.save();
    painter.setPen(backboneColor());
    painter.setBrush(backboneColor());
    painter.drawPolygon(wedge);
    painter.restore();
}

void paintHeader(QPainter &painter, const SpearItem &header)
{
    paintBackbone(painter, header);
    HeadPictures::paint(painter, header.line());
    painter.setFont(header.textFont(header.textState()));
    painter.setPen(header.textColor(header.textState()));
}

void paintBone(QPainter &painter, const SpearItem &spear)
{
    painter.setPen(spear.broaderPen(spear.currentState()));
    if (spear.isMoving())
        return;
    if (!spear.isMovable())
        painter.setPen(QPen(Qt::red));
    painter.drawLine(spear.line());
}
} // namespace

const std::shared_ptr<const SpearLook> &SpearLook::standard()
{
    static const std::shared_ptr<const SpearLook> look = std::make_shared<ClassicLook>();
    return look;
}

void ClassicLook::paint(QPainter &painter, const SpearItem &spear) const
{
    if (spear.isHeader())
        paintHeader(painter, spear);
    else
        paintBone(painter, spear);
    ClassicMarks::paintVotes(painter, spear);
}

void ClassicLook::size(const SpearTree &tree) const
{
    // Backwards through the levels, so that every child is complete before its parent asks.
    const std::vector<SpearTree::Entry> &entries = tree.entries();
    for (auto parent = entries.crbegin(); parent != entries.crend(); ++parent) {
        if (!parent->spear->isExpand())
            continue;
        for (int row = 0; row < parent->childCount; ++row) {
            tree.prefetchTextsAround(std::size_t(parent->firstChild + row));
            const SpearItem *const child = tree.child(*parent, row).spear;
            parent->spear->sumChildSize(QSizeF(child->spearWidth(), child->spearHeight()));
        }
    }
}

void ClassicLook::place(const SpearTree &tree) const
{
    tree.head().spear->updatePosition(QPointF(0, 0));
    for (const SpearTree::Entry &parent : tree.entries()) {
        if (parent.spear->direction() != 0)
            placeAlongSlantedBone(tree, parent);
        else
            placeAlongLevelBone(tree, parent);
    }
}

void ClassicLook::placeAlongSlantedBone(const SpearTree &tree, const SpearTree::Entry &parent)
{
    double offset = firstOffset;
    for (int row = 0; row < parent.childCount; ++row) {
        tree.prefetchMovedAfter(std::size_t(parent.firstChild + row));
        SpearItem *const child = tree.child(parent, row).spear;
        child->setOffset(offset);
        offset += child->spearHeight();
        SpearPasses::place(*child, parent.spear);
    }
}

void ClassicLook::placeAlongLevelBone(const SpearTree &tree, const SpearTree::Entry &parent)
{
    const bool isHead = parent.spear->isHeader();
    const int sides = isHead ? 2 : 1;
    double offsets[2] = {firstOffset, secondSideOffset};
    for (int row = 0; row < parent.childCount; ++row) {
        tree.prefetchMovedAfter(std::size_t(parent.firstChild + row));
        SpearItem *const child = tree.child(parent, row).spear;
        double &offset = offsets[row % sides];
        // A level child of a level bone keeps its place and takes up no room.
        if (isHead || child->direction() != 0) {
            const bool passesText = !isHead && child->direction() == -1;
            child->setOffset(passesText ? offset + parent.spear->textWidth() + textClearance
                                        : offset);
            offset += qMax(minimumAdvance, child->spearWidth());
        }
        SpearPasses::place(*child, parent.spear);
    }
}
