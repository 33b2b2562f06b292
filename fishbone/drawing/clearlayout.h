// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearcolumns.h>
#include <fishbone/drawing/clearhead.h>
#include <fishbone/drawing/clearlabel.h>
#include <fishbone/drawing/clearlegend.h>
#include <fishbone/drawing/clearoptions.h>
#include <fishbone/drawing/clearpacked.h>
#include <fishbone/drawing/clearshapes.h>
#include <fishbone/drawing/cleartree.h>

#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <memory>
#include <vector>

/**
 * The layout of a diagram in the clear look: where everything is that is drawn. The backbone meets
 * the head at the origin and lies on the axis. Knows no items, so that screen, files and tests
 * share it.
 *
 * Takes O(n log² n) for n subjects of any depth; texts that the cache knows cost nothing.
 */
class ClearLayout
{
public:
    /** One subject as it is drawn. The head has no line, only categories have a box. */
    struct Bone
    {
        std::shared_ptr<const ClearText> text;
        ClearLabel::Side side = ClearLabel::Side::Center; ///< of the text the bone is on
        bool isFilled = false;                            ///< a colour lies behind all its lines
        int level = 0;
        int category = -1;                          ///< the row of its category, -1 for the head
        QLineF line;                                ///< from the joint to the end
        QRectF textRect;                            ///< the lines of the title
        QRectF box;                                 ///< behind the title of a category
        QRectF status;                              ///< the status icon, null without one
        QRectF votes;                               ///< the number of votes, null without one
        std::shared_ptr<const ClearText> votesText; ///< that number; null for none
        QRectF link;                                ///< the link icon, null without one
        QRectF badge;                               ///< the "+5" of a contracted bone
        std::shared_ptr<const ClearText> badgeText; ///< that "+5"; null for all others
        QPointF button; ///< the middle of the button that contracts an expanded one

        /** Where the base line of line @p number of the title begins. */
        QPointF base(int number) const { return ClearLabel::base(*text, textRect, side, number); }
        /** The title with the colour behind it. */
        QRectF titleRect() const { return isFilled ? ClearLabel::filled(textRect) : textRect; }
        /** The title with its icons and its badge. */
        QRectF labelRect() const { return titleRect() | status | votes | link | badge | box; }
        /** All of it. */
        QRectF rect() const;
        /** Moves it along the backbone. */
        void move(qreal dx);
    };

    /** Lays out @p tree. @p legend has the meanings of the symbols in use, in order. Categories
     * that are as they are in @p packed are taken from there, the others stored there. */
    ClearLayout(const ClearTree &tree, const ClearFonts &fonts, const ClearOptions &options,
                ClearTextCache &cache, const std::vector<QString> &legend,
                std::vector<ClearPacked> &packed);
    /** The same from nothing. */
    ClearLayout(const ClearTree &tree, const ClearFonts &fonts, const ClearOptions &options,
                ClearTextCache &cache, const std::vector<QString> &legend = {});

    const Bone &bone(int index) const { return m_bones[std::size_t(index)]; }
    int size() const { return int(m_bones.size()); }

    /** What the drawing covers, head, tail and legend included. */
    const QRectF &bounds() const { return m_bounds; }
    /** What @p index covers with all below it. */
    const QRectF &extent(int index) const { return m_extents[std::size_t(index)]; }

    const QPainterPath &head() const { return m_head; }
    const QPainterPath &tail() const { return m_tail; }
    /** The backbone, which tapers off towards the tail. */
    const QPolygonF &backbone() const { return m_backbone; }
    const std::vector<ClearLegend::Entry> &legend() const { return m_legend.entries(); }

    /** How many titles are cut. */
    int cutTitles() const { return m_cutTitles; }

    /** How many steps of contours were looked at: a measure of the time it took. */
    quint64 work() const { return m_work; }

private:
    void makeLabels(const ClearTree &tree, const ClearFonts &fonts, ClearTextCache &cache);
    void layOut(const ClearTree &tree, const ClearFonts &fonts, ClearTextCache &cache,
                const std::vector<QString> &legend, std::vector<ClearPacked> &packed);
    void placeCategory(const ClearTree &tree, const ClearShapes &shapes, int row,
                       ClearColumns &columns, ClearPacked &packed);
    void placeBone(const ClearShapes &shapes, int index, int side);
    void placeBox(const ClearShapes &shapes, int index, int side);
    void placeHead(const ClearHead &head);
    void placeLegend();
    void measure(const ClearTree &tree);
    QPointF inPicture(int side, qreal along, qreal across) const;
    qreal direction() const { return m_options.isHeadLeft ? -1 : 1; }

    ClearOptions m_options;
    std::vector<ClearLabel> m_labels;
    std::vector<Bone> m_bones;
    std::vector<QRectF> m_extents;
    QPainterPath m_head;
    QPainterPath m_tail;
    QPolygonF m_backbone;
    ClearLegend m_legend;
    QRectF m_bounds;
    qreal m_tailPlace = 0;
    int m_cutTitles = 0;
    quint64 m_work = 0;
};
