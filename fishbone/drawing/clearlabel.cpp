// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlabel.h>

#include <fishbone/drawing/clearoptions.h>

#include <algorithm>
#include <utility>

namespace {
constexpr qreal badgeSpace = 4; ///< between the badge and the text
} // namespace

ClearLabel::ClearLabel(std::shared_ptr<const ClearText> text, const ClearLabelMarks &marks)
    : m_text(std::move(text))
    , m_marks(marks)
{
}

qreal ClearLabel::height() const
{
    return std::max(m_text->height(), m_marks.badgeWidth > 0 ? badgeHeight : 0);
}

/** An icon stays within its line, however small the subject's own font is. */
qreal ClearLabel::iconSize() const
{
    return std::min(ClearMeasure::icon, m_text->font().lineHeight());
}

qreal ClearLabel::iconSpace() const
{
    return iconSize() + ClearMeasure::iconGap;
}

/** Whether that side is the one of the status: where reading starts. */
bool ClearLabel::isStatusSide(bool onLeft) const
{
    return onLeft != m_text->isRightToLeft();
}

qreal ClearLabel::votesSpace() const
{
    return m_marks.votesWidth > 0 ? m_marks.votesWidth + ClearMeasure::iconGap : 0;
}

/** How much room what stands on that side of the text takes. */
qreal ClearLabel::spaceOn(bool onLeft) const
{
    const bool isStatus = isStatusSide(onLeft);
    const qreal icons = (isStatus ? m_marks.hasStatus : m_marks.hasLink) ? iconSpace() : 0;
    const qreal all = icons + (isStatus ? 0 : votesSpace());
    return all > 0 && m_marks.isFilled ? all + fillPadding : all;
}

/** The same where there is no bone, which may be near what lies behind the title. */
qreal ClearLabel::freeSpaceOn(bool onLeft) const
{
    return std::max(spaceOn(onLeft), m_marks.isFilled ? fillPadding : 0);
}

/** How wide what the icons of that side stand beside is. */
qreal ClearLabel::iconLineWidth(bool onLeft) const
{
    if (m_marks.isFilled)
        return m_text->width();
    return isStatusSide(onLeft) ? m_text->lines().front().width : m_text->lines().back().width;
}

qreal ClearLabel::width(Side side) const
{
    qreal width = m_text->width();
    if (side == Side::Center) {
        // The lines are centred on each other, the icons stand beside them.
        const qreal left = iconLineWidth(true) / 2 + freeSpaceOn(true);
        const qreal right = iconLineWidth(false) / 2 + freeSpaceOn(false);
        return std::max(width / 2, left) + std::max(width / 2, right);
    }
    const bool isBoneLeft = side == Side::Left;
    // Beside its own line at the ragged end, beside all lines at the straight one.
    width = std::max(width, iconLineWidth(!isBoneLeft) + freeSpaceOn(!isBoneLeft));
    width += spaceOn(isBoneLeft);
    return width + (m_marks.badgeWidth > 0 ? m_marks.badgeWidth + badgeSpace : 0);
}

qreal ClearLabel::anyWidth() const
{
    return std::max(width(Side::Left), width(Side::Right));
}

ClearLabelPlaces ClearLabel::placesAt(const QPointF &anchor, Side side) const
{
    ClearLabelPlaces places;
    const qreal width = m_text->width();
    const qreal badge = m_marks.badgeWidth > 0 ? m_marks.badgeWidth + badgeSpace : 0;
    const qreal top = anchor.y() - m_text->height() / 2;
    qreal left = anchor.x();
    if (side == Side::Center)
        left += leftShift(side) - this->width(side) / 2;
    else if (side == Side::Left)
        left += badge + spaceOn(true);
    else
        left -= badge + spaceOn(false) + width;
    places.text = QRectF(left, top, width, m_text->height());
    const bool isReversed = m_text->isRightToLeft();
    if (m_marks.hasStatus)
        places.status = iconRect(places.text, side, !isReversed, 0);
    if (m_marks.votesWidth > 0)
        places.votes = votesRect(places.text, side, isReversed);
    if (m_marks.hasLink)
        places.link = iconRect(places.text, side, isReversed, votesSpace());
    if (m_marks.badgeWidth > 0 && side != Side::Center) {
        const qreal x = side == Side::Right ? anchor.x() - m_marks.badgeWidth : anchor.x();
        places.badge = QRectF(x, anchor.y() - badgeHeight / 2, m_marks.badgeWidth, badgeHeight);
    }
    return places;
}

/** How far the lines of a centred label begin from its left end. */
qreal ClearLabel::leftShift(Side side) const
{
    const qreal half = m_text->width() / 2;
    if (side != Side::Center)
        return 0;
    return std::max(half, iconLineWidth(true) / 2 + freeSpaceOn(true)) - half;
}

/** Where that ends on the side of the icons. */
qreal ClearLabel::iconLineEnd(const QRectF &text, Side side, bool onLeft) const
{
    if (m_marks.isFilled)
        return onLeft ? text.left() - fillPadding : text.right() + fillPadding;
    const int line = isStatusSide(onLeft) ? 0 : m_text->lineCount() - 1;
    return base(*m_text, text, side, line).x() + (onLeft ? 0 : iconLineWidth(false));
}

/** Where an icon stands beside its line, or beside what takes @p width there. */
QRectF ClearLabel::iconRect(const QRectF &text, Side side, bool onLeft, qreal width) const
{
    const int line = isStatusSide(onLeft) ? 0 : m_text->lineCount() - 1;
    const qreal end = iconLineEnd(text, side, onLeft);
    const qreal lineHeight = m_text->font().lineHeight();
    const qreal size = iconSize();
    const qreal x = onLeft ? end - width - iconSpace() : end + width + ClearMeasure::iconGap;
    const qreal y = text.top() + (line + 0.5) * lineHeight - size / 2;
    return QRectF(x, y, size, size);
}

QRectF ClearLabel::votesRect(const QRectF &text, Side side, bool onLeft) const
{
    QRectF rect = iconRect(text, side, onLeft, 0); // where an icon would stand
    if (onLeft)
        rect.setLeft(rect.right() - m_marks.votesWidth);
    else
        rect.setRight(rect.left() + m_marks.votesWidth);
    const qreal height = std::min(votesHeight, m_text->font().lineHeight());
    rect.setTop(rect.center().y() - height / 2);
    rect.setHeight(height);
    return rect;
}

QPointF ClearLabel::base(const ClearText &text, const QRectF &rect, Side side, int line)
{
    const qreal spare = rect.width() - text.lines()[std::size_t(line)].width;
    qreal x = rect.left();
    if (side == Side::Right)
        x += spare;
    else if (side == Side::Center)
        x += spare / 2;
    return {x, rect.top() + line * text.font().lineHeight() + text.font().ascent()};
}
