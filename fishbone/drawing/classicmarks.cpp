// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/classicmarks.h>

#include <fishbone/drawing/clearcolors.h>
#include <fishbone/items/headpictures.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>

namespace {

constexpr qreal markWidth = 1.4;
constexpr qreal frameWidth = 2;
constexpr qreal frameCorner = 3;
const QColor rootCauseFrame(0xd0, 0x30, 0x26);
const QColor rootCauseTint(0xd0, 0x30, 0x26, 70);

/** The pen of the line that shows @p verdict. */
QPen verdictPen(Verdict verdict, const QColor &color)
{
    QPen pen(color, markWidth, Qt::SolidLine, Qt::FlatCap);
    if (verdict == Verdict::Suspected)
        pen.setDashPattern({1, 1.5});
    else if (verdict == Verdict::Checking)
        pen.setDashPattern({4, 2});
    return pen;
}

/** Draws a line below each line of @p title, or through it. */
void paintLines(QPainter &painter, const TextItem &title, bool isThrough)
{
    for (const TextItem::Line &line : title.lines()) {
        const qreal base = line.rect.top() + line.ascent;
        const qreal y = isThrough ? base - line.ascent * 0.3 : base + markWidth;
        painter.drawLine(QLineF(line.rect.left(), y, line.rect.right(), y));
    }
}

constexpr qreal votesHeight = 13;
constexpr qreal votesPadding = 5;      ///< beside the number, left and right together
constexpr int votesFont = 10;          ///< pixels
constexpr qreal widestAtLetters = 16;  ///< between those of a level bone and those of its parent
constexpr qreal letterDistance = 13.5; ///< of a level bone's start from the letters of its title
constexpr qreal endDistance = 20;      ///< of a slanted bone's end, less than its title leaves free

/** The middle of the number of votes, which is @p width wide. */
QPointF votesPlace(const SpearItem &spear, qreal width)
{
    const QLineF bone = spear.line();
    if (spear.isHeader())
        return bone.p1() +
               QPointF(width / 2, (votesHeight - HeadPictures::headSize().height()) / 2.0);
    if (spear.direction() == 0)
        return bone.p1() + QPointF(spear.side() * (letterDistance - width / 2), 0);
    return bone.pointAt(1 - endDistance / qMax(bone.length(), endDistance));
}

} // namespace

void ClassicMarks::paint(QPainter &painter, const SpearItem &spear)
{
    const TextItem *const title = spear.textItem();
    const Verdict verdict =
        spear.treeItem() ? SubjectMarks::verdict(*spear.treeItem()) : Verdict::None;
    if (verdict == Verdict::None || !title || spear.text().isEmpty())
        return;
    painter.save();
    if (verdict == Verdict::RootCause) {
        const qreal inset = frameWidth / 2;
        painter.setPen(QPen(rootCauseFrame, frameWidth));
        painter.setBrush(rootCauseTint);
        painter.drawRoundedRect(title->boundingRect().adjusted(inset, inset, -inset, -inset),
                                frameCorner, frameCorner);
    } else {
        painter.setPen(verdictPen(verdict, spear.textColor(spear.textState())));
        paintLines(painter, *title, verdict == Verdict::RuledOut);
    }
    painter.restore();
}

void ClassicMarks::paintVotes(QPainter &painter, const SpearItem &spear)
{
    const int votes = spear.treeItem() ? SubjectMarks::votes(*spear.treeItem()) : 0;
    if (votes < 1 || spear.isMoving())
        return;
    QFont font = spear.textFont(SpearStyle::ssNormal);
    font.setPixelSize(votesFont);
    const QString number = QString::number(votes);
    const qreal width =
        qMax(QFontMetricsF(font).horizontalAdvance(number) + votesPadding, votesHeight);
    const bool isNarrow = spear.direction() == 0 && !spear.isHeader();
    const qreal scale = isNarrow ? qMin(1.0, widestAtLetters / width) : 1;
    const QRectF rect(-width / 2, -votesHeight / 2, width, votesHeight);
    const QColor fill = spear.textColor(SpearStyle::ssNormal);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(votesPlace(spear, width * scale));
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    painter.setFont(font);
    painter.setPen(ClearColors::inkOn(fill));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextDontClip, number);
    painter.restore();
}
