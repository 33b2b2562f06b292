// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/cleartext.h>

#include <QPointF>
#include <QRectF>

#include <memory>

/** Where the parts of a label are. */
struct ClearLabelPlaces
{
    QRectF text;   ///< the lines alone
    QRectF status; ///< null without a status
    QRectF votes;  ///< null without votes
    QRectF link;   ///< null without a link
    QRectF badge;  ///< null without a badge
};

/**
 * A title with what belongs to it: the status before its first line, the votes and the link after
 * its last one, as it is read, each in the middle of that line; and between the title and its bone
 * the badge that says how many subjects are hidden.
 */
class ClearLabel
{
public:
    /** Where the bone is. */
    enum class Side {
        Left,   ///< the text begins at the bone
        Right,  ///< the text ends at the bone
        Center, ///< the text is centred
    };

    ClearLabel() = default;
    /** @p badgeWidth and @p votesWidth are 0 where there is none. */
    ClearLabel(std::shared_ptr<const ClearText> text, bool hasStatus, bool hasLink,
               qreal badgeWidth, qreal votesWidth = 0);

    const std::shared_ptr<const ClearText> &text() const { return m_text; }

    /** How wide all of it is with the bone on @p side. */
    qreal width(Side side) const;
    /** How wide it is at most, whichever of its sides the bone is on. */
    qreal anyWidth() const;
    qreal height() const;
    /** How wide its badge is, 0 without one. A centred label leaves it to others to place it. */
    qreal badgeWidth() const { return m_badgeWidth; }

    /** The places when the bone is on @p side, and the middle of that side (of all, when it is
     * centred) is at @p anchor. */
    ClearLabelPlaces placesAt(const QPointF &anchor, Side side) const;

    /** Where the base line of @p line begins. */
    static QPointF base(const ClearText &text, const QRectF &rect, Side side, int line);

    static constexpr qreal badgeHeight = 15;
    static constexpr qreal votesHeight = 14;

    /** Whether it takes the same room: texts that are laid out once are compared. */
    bool operator==(const ClearLabel &o) const
    {
        return m_text == o.m_text && m_hasStatus == o.m_hasStatus && m_hasLink == o.m_hasLink &&
               m_badgeWidth == o.m_badgeWidth && m_votesWidth == o.m_votesWidth;
    }

private:
    bool isStatusSide(bool onLeft) const;
    qreal spaceOn(bool onLeft) const;
    qreal votesSpace() const;
    QRectF votesRect(const QRectF &text, Side side, bool onLeft) const;
    qreal iconLineWidth(bool onLeft) const;
    qreal iconSize() const;
    qreal iconSpace() const;
    QRectF iconRect(const QRectF &text, Side side, bool onLeft, qreal width) const;
    qreal leftShift(Side side) const;

    std::shared_ptr<const ClearText> m_text;
    bool m_hasStatus = false;
    bool m_hasLink = false;
    qreal m_badgeWidth = 0;
    qreal m_votesWidth = 0;
};
