// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlayout.h>

#include <fishbone/drawing/clearcover.h>

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
using ClearMeasure::slope;

constexpr qreal narrowestCategory = 90; ///< a limit for categories is no less
constexpr qreal badgePadding = 4;
constexpr qreal shortestBackbone = 40;
constexpr qreal backboneHalf = 3; ///< at the head
constexpr int headLines = 5;
constexpr qreal headWidest = 360;
constexpr qreal penHalf = 1.1;
constexpr qreal buttonInset = 5;

QRectF around(const QLineF &line)
{
    return QRectF(line.p1(), line.p2()).normalized().adjusted(-penHalf, -penHalf, penHalf, penHalf);
}

/** What stands beside and behind the title of @p subject, whose texts @p bone has. */
ClearLabelMarks marksOf(const ClearSubject &subject, const ClearLayout::Bone &bone)
{
    ClearLabelMarks marks;
    marks.hasStatus = subject.hasStatus && subject.parent >= 0;
    marks.hasLink = subject.hasLink;
    marks.isFilled = subject.isFilled;
    if (bone.badgeText)
        marks.badgeWidth = bone.badgeText->width() + 2 * badgePadding;
    if (bone.votesText)
        marks.votesWidth =
            std::max(bone.votesText->width() + 2 * badgePadding, ClearLabel::votesHeight);
    return marks;
}
} // namespace

QRectF ClearLayout::Bone::rect() const
{
    return line.isNull() ? labelRect() : labelRect() | around(line);
}

ClearLayout::ClearLayout(const ClearTree &tree, const ClearFonts &fonts,
                         const ClearOptions &options, ClearTextCache &cache,
                         const std::vector<QString> &legend, std::vector<ClearPacked> &packed)
    : m_options(options)
    , m_bones(std::size_t(tree.size()))
{
    layOut(tree, fonts, cache, legend, packed);
}

ClearLayout::ClearLayout(const ClearTree &tree, const ClearFonts &fonts,
                         const ClearOptions &options, ClearTextCache &cache,
                         const std::vector<QString> &legend)
    : m_options(options)
    , m_bones(std::size_t(tree.size()))
{
    std::vector<ClearPacked> packed;
    layOut(tree, fonts, cache, legend, packed);
}

void ClearLayout::layOut(const ClearTree &tree, const ClearFonts &fonts, ClearTextCache &cache,
                         const std::vector<QString> &legend, std::vector<ClearPacked> &packed)
{
    if (tree.size() == 0)
        return;
    makeLabels(tree, fonts, cache);
    if (m_options.hasLegend)
        m_legend = ClearLegend(legend, fonts.legend(), cache);
    packed.resize(std::size_t(tree.children(0).size()));
    const ClearShapes shapes(tree, m_labels, m_options, packed);
    const ClearHead head(m_labels.front());
    ClearColumns columns(head.size().height());
    for (int row = 0; row < tree.children(0).size(); ++row)
        placeCategory(tree, shapes, row, columns, packed[std::size_t(row)]);
    m_tailPlace = -columns.end();
    placeHead(head);
    measure(tree);
    placeLegend();
    m_work = shapes.work() + columns.work();
    m_labels.clear();
    m_labels.shrink_to_fit();
}

void ClearLayout::makeLabels(const ClearTree &tree, const ClearFonts &fonts, ClearTextCache &cache)
{
    ClearWrap ofCategories = m_options.wrap;
    if (ofCategories.limit > 0)
        ofCategories.limit = std::max(ofCategories.limit, narrowestCategory);
    ClearWrap ofHead;
    ofHead.limit = m_options.headWidth;
    ofHead.lines = headLines;
    ofHead.widens = true;
    ofHead.widest = headWidest;
    m_labels.reserve(std::size_t(tree.size()));
    cache.beginLayout();
    for (int index = 0; index < tree.size(); ++index) {
        const ClearSubject &subject = tree.at(index);
        const int level = tree.level(index);
        const ClearFont &font = subject.font ? *subject.font : fonts.ofLevel(level);
        const ClearWrap &wrap = level == 0 ? ofHead : level == 1 ? ofCategories : m_options.wrap;
        std::shared_ptr<const ClearText> text = cache.text(subject.title, font, wrap);
        m_cutTitles += text->isCut() ? 1 : 0;
        Bone &bone = m_bones[std::size_t(index)];
        if (subject.hidden > 0)
            bone.badgeText =
                cache.text(u'+' + QString::number(subject.hidden), fonts.badge(), ClearWrap());
        if (subject.votes > 0)
            bone.votesText = cache.text(QString::number(subject.votes), fonts.badge(), ClearWrap());
        bone.text = text;
        bone.isFilled = subject.isFilled;
        m_labels.emplace_back(std::move(text), marksOf(subject, bone));
    }
}

void ClearLayout::Bone::move(qreal dx)
{
    line.translate(dx, 0);
    button.rx() += dx;
    for (QRectF *const rect : {&textRect, &box, &status, &votes, &link, &badge}) {
        if (!rect->isNull())
            rect->translate(dx, 0);
    }
}

QPointF ClearLayout::inPicture(int side, qreal along, qreal across) const
{
    return {direction() * (-along - across * slope), side * across};
}

/** Places the bones of a category around its joint, and then all of it on the backbone. */
void ClearLayout::placeCategory(const ClearTree &tree, const ClearShapes &shapes, int row,
                                ClearColumns &columns, ClearPacked &packed)
{
    const int category = tree.children(0)[row];
    const int side = row % 2 == 0 ? 1 : -1; // below the backbone first
    const bool isKnown = !packed.column.boxes.empty();
    ClearCover cover(m_options.isHeadLeft);
    for (int index = category; index < tree.end(category); ++index) {
        Bone &bone = m_bones[std::size_t(index)];
        bone.level = tree.level(index);
        bone.category = row;
        if (index == category)
            placeBox(shapes, index, side);
        else
            placeBone(shapes, index, side);
        if (!isKnown)
            cover.add(bone, shapes.bone(index));
    }
    if (!isKnown)
        packed.column = ClearColumns::columnOf(cover.takeBoxes());
    const qreal joint = columns.place(packed.column, side > 0);
    for (int index = category; index < tree.end(category); ++index)
        m_bones[std::size_t(index)].move(-direction() * joint);
}

void ClearLayout::placeBone(const ClearShapes &shapes, int index, int side)
{
    const ClearShapes::Bone &shape = shapes.bone(index);
    const qreal sign = shape.isMirrored ? -1 : 1;
    Bone &bone = m_bones[std::size_t(index)];
    const bool isRight = shape.isMirrored == m_options.isHeadLeft; // the bone, of its text
    bone.side = isRight ? ClearLabel::Side::Right : ClearLabel::Side::Left;
    const QPointF joint = inPicture(side, shape.along, shape.across);
    qreal along = shape.along;
    qreal across = shape.across;
    if (ClearShapes::isSlanted(bone.level))
        across += shape.lead + shape.length;
    else
        along += sign * shape.length;
    bone.line = QLineF(joint, inPicture(side, along, across));
    const QPointF anchor = inPicture(side, along + sign * shape.textAlong, across);
    const ClearLabelPlaces places = m_labels[std::size_t(index)].placesAt(anchor, bone.side);
    bone.textRect = places.text;
    bone.status = places.status;
    bone.votes = places.votes;
    bone.link = places.link;
    bone.badge = places.badge;
    const qreal inset = std::min(buttonInset / bone.line.length(), 0.5);
    bone.button = bone.line.pointAt(1 - inset);
}

void ClearLayout::placeBox(const ClearShapes &shapes, int index, int side)
{
    const qreal length = shapes.bone(index).length;
    const QSizeF half = shapes.boxOf(index);
    const ClearLabel &label = m_labels[std::size_t(index)];
    Bone &bone = m_bones[std::size_t(index)];
    bone.side = ClearLabel::Side::Center;
    const QPointF end = inPicture(side, 0, length);
    bone.line = QLineF(inPicture(side, 0, 0), end);
    const QPointF middle(end.x(), end.y() + side * half.height() / 2);
    bone.box = QRectF(middle.x() - half.width(), middle.y() - half.height() / 2, 2 * half.width(),
                      half.height());
    const ClearLabelPlaces places = label.placesAt(middle, bone.side);
    bone.textRect = places.text;
    bone.status = places.status;
    bone.votes = places.votes;
    bone.link = places.link;
    if (label.badgeWidth() > 0) {
        bone.badge = QRectF(0, 0, label.badgeWidth(), ClearLabel::badgeHeight);
        bone.badge.moveCenter(inPicture(side, 0, ClearShapes::categoryBadge));
    }
    bone.button = inPicture(side, 0, std::max<qreal>(length - buttonInset, 0));
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
    bone.votes = places.votes;
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
