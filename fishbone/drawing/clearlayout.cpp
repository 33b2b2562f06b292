// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlayout.h>

#include <QFontMetricsF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
using ClearMeasure::slope;

constexpr qreal narrowestCategory = 90; ///< a limit for categories is no less
constexpr qreal badgePadding = 4;
constexpr qreal firstBelow = 14; ///< from the head to the first joint of each side
constexpr qreal firstAbove = 26;
constexpr qreal overHead = 10;   ///< what may hang over towards the head before that grows
constexpr qreal headClear = 4;   ///< between the head and what hangs over above it
constexpr qreal jointPitch = 12; ///< between two joints of a side
constexpr qreal columnGap = 16;  ///< between two categories
constexpr qreal columnMargin = 3;
constexpr qreal shortestBackbone = 40;
constexpr qreal nearBackbone = 20; ///< what is nearer than that to it keeps off the tail
constexpr qreal tailGap = 4;
constexpr qreal behindLast = 12;
constexpr qreal backboneHalf = 3; ///< at the head
constexpr int headLines = 5;
constexpr qreal headWidest = 360;
constexpr qreal penHalf = 1.1;
constexpr qreal buttonInset = 5;

QRectF around(const QLineF &line)
{
    return QRectF(line.p1(), line.p2()).normalized().adjusted(-penHalf, -penHalf, penHalf, penHalf);
}
} // namespace

QRectF ClearLayout::Bone::rect() const
{
    return line.isNull() ? labelRect() : labelRect() | around(line);
}

ClearLayout::ClearLayout(const ClearTree &tree, const ClearFonts &fonts,
                         const ClearOptions &options, ClearTextCache &cache,
                         const std::vector<QString> &legend)
    : m_options(options)
    , m_bones(std::size_t(tree.size()))
{
    if (tree.size() == 0)
        return;
    makeLabels(tree, fonts, cache);
    if (options.hasLegend)
        m_legend = ClearLegend(legend, fonts.legend(), cache);
    const ClearShapes shapes(tree, m_labels, m_options);
    const ClearHead head(m_labels.front());
    placeCategories(tree, shapes, head);
    placeBones(tree, shapes);
    placeHead(head);
    measure(tree);
    placeLegend();
    m_work += shapes.work();
    m_labels.clear();
    m_labels.shrink_to_fit();
}

void ClearLayout::makeLabels(const ClearTree &tree, const ClearFonts &fonts, ClearTextCache &cache)
{
    const QFontMetricsF badge(fonts.badge().font(), ClearFont::device());
    ClearWrap ofCategories = m_options.wrap;
    if (ofCategories.limit > 0)
        ofCategories.limit = std::max(ofCategories.limit, narrowestCategory);
    ClearWrap ofHead;
    ofHead.limit = m_options.headWidth;
    ofHead.lines = headLines;
    ofHead.widens = true;
    ofHead.widest = headWidest;
    m_labels.reserve(std::size_t(tree.size()));
    for (int index = 0; index < tree.size(); ++index) {
        const ClearSubject &subject = tree.at(index);
        const int level = tree.level(index);
        const ClearFont &font = subject.font ? *subject.font : fonts.ofLevel(level);
        const ClearWrap &wrap = level == 0 ? ofHead : level == 1 ? ofCategories : m_options.wrap;
        std::shared_ptr<const ClearText> text = cache.text(subject.title, font, wrap);
        m_cutTitles += text->isCut() ? 1 : 0;
        qreal badgeWidth = 0;
        if (subject.hidden > 0)
            badgeWidth =
                badge.horizontalAdvance(u'+' + QString::number(subject.hidden)) + 2 * badgePadding;
        m_bones[std::size_t(index)].text = text;
        m_labels.emplace_back(std::move(text), subject.hasStatus && level > 0, subject.hasLink,
                              badgeWidth);
    }
}

/** Places the categories of each side beside each other, as near to the head as they go. */
void ClearLayout::placeCategories(const ClearTree &tree, const ClearShapes &shapes,
                                  const ClearHead &head)
{
    ClearOutline sides[2];
    qreal previous[2] = {-jointPitch, -jointPitch};
    const qreal headHalf = head.size().height() / 2 + headClear;
    qreal last = shortestBackbone + behindLast;
    const ClearTree::Children categories = tree.children(0);
    m_categories.resize(std::size_t(categories.size()));
    for (int row = 0; row < categories.size(); ++row) {
        const bool isBelow = row % 2 == 0;
        std::vector<ClearBox> boxes = shapes.boxes(categories[row]);
        qreal hangsOver = 0;
        qreal nearest = 0; // what keeps off the tail
        for (ClearBox &box : boxes) {
            if (box.low < headHalf)
                hangsOver = std::max(hangsOver, -box.from - box.low * slope);
            if (box.low < nearBackbone)
                nearest = std::max(nearest, box.to + box.high * slope);
            // Here the backbone is the line that things are packed along.
            box = ClearBox{box.low, box.high, box.from, box.to};
        }
        ClearOutline outline = ClearOutline::ofBoxes(boxes, columnMargin);
        ClearOutline &side = sides[isBelow];
        qreal joint =
            (isBelow ? firstBelow : firstAbove) + std::max<qreal>(0, hangsOver - overHead);
        joint = std::max(joint, previous[isBelow] + jointPitch);
        joint = std::max(joint, side.drop(outline, 0, -1e9) + columnGap);
        side.stack(std::move(outline), 0, joint);
        previous[isBelow] = joint;
        m_categories[std::size_t(row)] = {joint, isBelow ? 1 : -1};
        last = std::max({last, joint + behindLast, joint + nearest});
    }
    m_tailPlace = -last - tailGap;
    m_work += sides[0].work() + sides[1].work();
}

QPointF ClearLayout::inPicture(const Category &category, qreal along, qreal across) const
{
    return {direction() * (-category.joint - along - across * slope), category.side * across};
}

void ClearLayout::placeBones(const ClearTree &tree, const ClearShapes &shapes)
{
    for (int index = 1; index < tree.size(); ++index) {
        Bone &bone = m_bones[std::size_t(index)];
        bone.level = tree.level(index);
        const int parent = tree.at(index).parent;
        bone.category = bone.level > 1 ? m_bones[std::size_t(parent)].category : -1;
    }
    const ClearTree::Children categories = tree.children(0);
    for (int row = 0; row < categories.size(); ++row) {
        const int category = categories[row];
        placeBox(shapes, category, m_categories[std::size_t(row)]);
        for (int index = category; index < tree.end(category); ++index) {
            m_bones[std::size_t(index)].category = row;
            if (index > category)
                placeBone(shapes, index, m_categories[std::size_t(row)]);
        }
    }
}

void ClearLayout::placeBone(const ClearShapes &shapes, int index, const Category &category)
{
    const ClearShapes::Bone &shape = shapes.bone(index);
    const qreal sign = shape.isMirrored ? -1 : 1;
    Bone &bone = m_bones[std::size_t(index)];
    const bool isRight = shape.isMirrored == m_options.isHeadLeft; // the bone, of its text
    bone.side = isRight ? ClearLabel::Side::Right : ClearLabel::Side::Left;
    const QPointF joint = inPicture(category, shape.along, shape.across);
    qreal along = shape.along;
    qreal across = shape.across;
    if (ClearShapes::isSlanted(bone.level))
        across += shape.lead + shape.length;
    else
        along += sign * shape.length;
    bone.line = QLineF(joint, inPicture(category, along, across));
    const QPointF anchor = inPicture(category, along + sign * shape.textAlong, across);
    const ClearLabelPlaces places = m_labels[std::size_t(index)].placesAt(anchor, bone.side);
    bone.textRect = places.text;
    bone.status = places.status;
    bone.link = places.link;
    bone.badge = places.badge;
    const qreal inset = std::min(buttonInset / bone.line.length(), 0.5);
    bone.button = bone.line.pointAt(1 - inset);
}

void ClearLayout::placeBox(const ClearShapes &shapes, int index, const Category &category)
{
    const qreal length = shapes.bone(index).length;
    const QSizeF half = shapes.boxOf(index);
    const ClearLabel &label = m_labels[std::size_t(index)];
    Bone &bone = m_bones[std::size_t(index)];
    bone.side = ClearLabel::Side::Center;
    const QPointF end = inPicture(category, 0, length);
    bone.line = QLineF(inPicture(category, 0, 0), end);
    const QPointF middle(end.x(), end.y() + category.side * half.height() / 2);
    bone.box = QRectF(middle.x() - half.width(), middle.y() - half.height() / 2, 2 * half.width(),
                      half.height());
    const ClearLabelPlaces places = label.placesAt(middle, bone.side);
    bone.textRect = places.text;
    bone.status = places.status;
    bone.link = places.link;
    if (label.badgeWidth() > 0) {
        bone.badge = QRectF(0, 0, label.badgeWidth(), ClearLabel::badgeHeight);
        bone.badge.moveCenter(inPicture(category, 0, ClearShapes::categoryBadge));
    }
    bone.button = inPicture(category, 0, std::max<qreal>(length - buttonInset, 0));
}

void ClearLayout::placeHead(const ClearHead &head)
{
    const QTransform mirror = QTransform::fromScale(direction(), 1);
    m_head = mirror.map(head.outline());
    m_tail = mirror.map(ClearHead::tail(m_tailPlace));
    m_backbone = mirror.map(
        QPolygonF({QPointF(m_tailPlace, 0), QPointF(0, -backboneHalf), QPointF(0, backboneHalf)}));
    const QPointF center = mirror.map(head.titleCenter());
    const ClearLabel &label = m_labels.front();
    const ClearLabelPlaces places = label.placesAt(center, ClearLabel::Side::Center);
    Bone &bone = m_bones.front();
    bone.textRect = places.text;
    bone.link = places.link;
    bone.box = m_head.boundingRect();
    bone.button = QPointF(-direction() * buttonInset, 0);
    if (label.badgeWidth() > 0) {
        bone.badge = QRectF(0, 0, label.badgeWidth(), ClearLabel::badgeHeight);
        bone.badge.moveCenter(QPointF(-direction() * shortestBackbone / 2, 0));
    }
}

void ClearLayout::measure(const ClearTree &tree)
{
    m_extents.resize(m_bones.size());
    for (int index = tree.size() - 1; index >= 0; --index) {
        QRectF &extent = m_extents[std::size_t(index)];
        extent |= bone(index).rect();
        if (index > 0)
            m_extents[std::size_t(tree.at(index).parent)] |= extent;
    }
    m_extents.front() |= m_tail.boundingRect();
    m_bounds = m_extents.front();
}

void ClearLayout::placeLegend()
{
    if (m_legend.isEmpty())
        return;
    std::vector<QRectF> taken;
    for (const Bone &bone : m_bones) {
        taken.push_back(bone.labelRect());
        if (!bone.line.isNull())
            taken.push_back(around(bone.line));
    }
    taken.push_back(m_tail.boundingRect());
    m_bounds = m_legend.place(m_bounds, taken, m_options.isHeadLeft);
}
