// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include <QLineF>
#include <QPointF>
#include <QSizeF>

#include <fishbone/drawing/speartree.h>
#include <fishbone/items/spearitem.h>

class SpearLook;

/** What one spear was laid out from and where it came to stand, as it says itself. */
class SettledSpear
{
public:
    explicit SettledSpear(const SpearItem &spear);

    /** Whether @p spear is the same one and says all of it still. */
    bool holds(const SpearItem &spear) const;

private:
    struct Part
    {
        QPointF position;
        double width = -1; ///< none where there is no such part

        bool holds(const QGraphicsItem *item) const;
    };

    static std::optional<QPointF> placeOf(const QGraphicsItem *item);
    static Part partOf(const QGraphicsItem *item);

    const SpearItem *m_spear; ///< only compared
    QSizeF m_text;
    int m_direction;
    bool m_isExpanded;
    double m_offset;
    SpearItem::ChildExtents m_children;
    QLineF m_line;
    QPointF m_textPosition;
    double m_textRotation;
    std::optional<QPointF> m_status; ///< where it was made
    Part m_link;
    Part m_button;
};

/** A drawing as it stood after its last layout, to see whether it needs another one. */
class SettledDrawing
{
public:
    /** Nothing is known of the drawing from now on. */
    void forget() { m_spears.clear(); }
    /**
     * Notes how the spears of @p tree stand, which were laid out in @p look. Into the memory
     * of the notes before: new pages for each layout would take longer than the notes do.
     */
    void note(const SpearTree &tree, const SpearLook *look)
    {
        m_spears.clear();
        m_spears.reserve(tree.entries().size());
        for (std::size_t place = 0; place < tree.entries().size(); ++place) {
            tree.prefetchAfter(place);
            m_spears.emplace_back(*tree.entries()[place].spear);
        }
        m_look = look;
    }

    /** Whether @p spear stands in that place of the breadth-first order as noted. */
    bool matches(std::size_t place, const SpearItem &spear) const
    {
        return place < m_spears.size() && m_spears[place].holds(spear);
    }
    /** Whether so many spears were noted, in that look. */
    bool matches(std::size_t count, const SpearLook *look) const
    {
        return m_spears.size() == count && m_look == look;
    }

private:
    std::vector<SettledSpear> m_spears;
    const SpearLook *m_look = nullptr; ///< only compared
};
