// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearcolors.h>
#include <fishbone/drawing/clearpacked.h>
#include <fishbone/drawing/cleartext.h>
#include <fishbone/drawing/diagramlook.h>
#include <fishbone/drawing/drawinglook.h>

#include <vector>

struct ClearSpear;
struct ClearInk;
struct ClearSubjectLook;
class ClearTree;
class PictureSink;

/**
 * The clear look: all texts level and wrapped, categories in coloured boxes, the title inside the
 * head. ClearLayout computes it for the whole drawing; each spear keeps its part as ClearSpear.
 *
 * Hidden spears have no place; they stand as points where they come from.
 */
class ClearLook : public DrawingLook
{
public:
    explicit ClearLook(const DiagramLook::Options &options);

    double width(const SpearItem &spear) const override;
    double height(const SpearItem &spear) const override;
    double backboneAngle(const SpearItem &spear) const override;

    QLineF line(const SpearItem &spear, const SpearItem *parent) const override;
    QPointF textPosition(const SpearItem &spear) const override;
    std::optional<double> textRotation(const SpearItem &spear) const override;
    QPointF statusPosition(const SpearItem &spear) const override;
    QPointF linkPosition(const SpearItem &spear) const override;
    QPointF buttonPosition(const SpearItem &spear) const override;
    bool showsStatus(const SpearItem &spear) const override;
    bool showsButton(const SpearItem &spear) const override;
    bool scalesIcons() const override { return true; }
    double iconScale(const QGraphicsItem &icon) const override;

    int rowAt(const SpearItem &spear, const QPointF &scenePos, int movingRow) const override;
    QPointF slot(const SpearItem &spear, int row) const override;

    QRectF textRect(const SpearItem &spear) const override;
    QRectF boundingRect(const SpearItem &spear) const override;
    QPainterPath shape(const SpearItem &spear) const override;
    void paint(QPainter &painter, const SpearItem &spear) const override;
    QRectF textBox(const SpearItem &spear) const override;
    bool paintText(QPainter &painter, const SpearItem &spear) const override;
    QRectF badge(const SpearItem &spear) const override;
    void paintBadge(QPainter &painter, const SpearItem &spear) const override;
    bool showsChains() const override { return true; }

    /** Describes backbone and tail, which the header @p spear has. */
    void describeFish(PictureSink &sink, const SpearItem &spear) const;
    /** Describes the bone, or the head, and the title of @p spear as they are painted. */
    void describe(PictureSink &sink, const SpearItem &spear) const;
    /** Describes the button of @p spear that says how much it hides, if it has one. */
    void describeBadge(PictureSink &sink, const SpearItem &spear) const;
    /** Describes the legend, which the header @p spear has. */
    void describeLegend(PictureSink &sink, const SpearItem &spear) const;

    void size(const SpearTree &tree) const override;
    void place(const SpearTree &tree) const override;
    bool isSettled() const override { return false; }

private:
    std::vector<ClearInk> inksOf(const ClearTree &tree,
                                 const std::vector<ClearSubjectLook> &looks) const;
    void paintHeader(QPainter &painter, const SpearItem &spear) const;
    void describeHead(PictureSink &sink, const SpearItem &spear, const ClearSpear &header) const;
    void describeTitle(PictureSink &sink, const SpearItem &spear, const ClearSpear &place) const;
    QPen penOf(const SpearItem &spear, const ClearSpear &place) const;
    ClearInk inkOf(const SpearItem &spear, const ClearSpear &place) const;

    DiagramLook::Options m_options;
    ClearColors m_colors;
    mutable ClearTextCache m_texts;            ///< what was measured stays measured
    mutable std::vector<ClearPacked> m_packed; ///< the categories of the last layout
};
