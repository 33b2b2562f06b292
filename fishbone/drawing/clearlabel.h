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

/** What a title has beside and behind it. */
struct ClearLabelMarks
{
    bool hasStatus = false;
    bool hasLink = false;
    bool isFilled = false; ///< a colour lies behind all of its lines
    qreal badgeWidth = 0;  ///< 0 without a badge
    qreal votesWidth = 0;  ///< 0 without votes

    bool operator==(const ClearLabelMarks &o) const
    {
        return hasStatus == o.hasStatus && hasLink == o.hasLink && isFilled == o.isFilled &&
               badgeWidth == o.badgeWidth && votesWidth == o.votesWidth;
    }
};

/**
 * A title with what belongs to it: the status before its first line, the votes and the link after
 * its last one, as it is read, each in the middle of that line; and between the title and its bone
 * the badge that says how many subjects are hidden. Beside a title with a colour behind it they
 * stand clear of that, which is as wide as the widest line.
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
    ClearLabel(std::shared_ptr<const ClearText> text, const ClearLabelMarks &marks);

    const std::shared_ptr<const ClearText> &text() const { return m_text; }

    /** How wide all of it is with the bone on @p side. */
    qreal width(Side side) const;
    /** How wide it is at most, whichever of its sides the bone is on. */
    qreal anyWidth() const;
    qreal height() const;
    /** How wide its badge is, 0 without one. A centred label leaves it to others to place it. */
    qreal badgeWidth() const { return m_marks.badgeWidth; }

    /** The places when the bone is on @p side, and the middle of that side (of all, when it is
     * centred) is at @p anchor. */
    ClearLabelPlaces placesAt(const QPointF &anchor, Side side) const;

    /** Where the base line of @p line begins. */
    static QPointF base(const ClearText &text, const QRectF &rect, Side side, int line);

    /** What a colour behind the title at @p text covers. */
    static QRectF filled(const QRectF &text)
    {
        return text.adjusted(-fillPadding, 0, fillPadding, 0);
    }

    static constexpr qreal badgeHeight = 15;
    static constexpr qreal votesHeight = 14;
    static constexpr qreal fillPadding = 2; ///< of the colour behind a title, on its left and right

    /** Whether it takes the same room: texts that are laid out once are compared. */
    bool operator==(const ClearLabel &o) const
    {
        return m_text == o.m_text && m_marks == o.m_marks;
    }

private:
    bool isStatusSide(bool onLeft) const;
    qreal spaceOn(bool onLeft) const;
    qreal freeSpaceOn(bool onLeft) const;
    qreal votesSpace() const;
    QRectF votesRect(const QRectF &text, Side side, bool onLeft) const;
    qreal iconLineWidth(bool onLeft) const;
    qreal iconLineEnd(const QRectF &text, Side side, bool onLeft) const;
    qreal iconSize() const;
    qreal iconSpace() const;
    QRectF iconRect(const QRectF &text, Side side, bool onLeft, qreal width) const;
    qreal leftShift(Side side) const;

    std::shared_ptr<const ClearText> m_text;
    ClearLabelMarks m_marks;
};
