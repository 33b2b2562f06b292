// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpieces.h>

#include <fishbone/drawing/clearcolors.h>

#include <algorithm>

namespace {
constexpr qreal boxRadius = 4;
constexpr qreal fishLine = 1.5;
constexpr qreal broadFishLine = 3.5;
constexpr qreal ring = 1.5; ///< of white around an icon on a coloured box
constexpr qreal padding = 2;
constexpr qreal markLine = 1.4;
constexpr qreal frameLine = 2.5;
constexpr qreal dotRadius = 0.3; ///< of the size of a colour in the legend
constexpr int legendLevel = 3;   ///< as quiet as the deeper causes
constexpr int sampleLevel = 2;
constexpr qreal sampleTint = 0.3;
constexpr qreal strikeHeight = 0.3; ///< of the size of the letters

QPainterPath closed(const QPolygonF &polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

/** How a verdict is drawn below the title: dots for a suspicion, strokes while it is looked into, a
 * line when it is confirmed. */
QPen underline(Verdict verdict, const QColor &color)
{
    QPen pen(color, markLine, Qt::SolidLine, Qt::FlatCap);
    if (verdict == Verdict::Suspected)
        pen.setDashPattern({1, 1.5});
    else if (verdict == Verdict::Checking)
        pen.setDashPattern({4, 2});
    return pen;
}

/** Draws the verdict over the line from @p base on, which is @p width long. */
void verdictOn(PictureSink &sink, Verdict verdict, const QPointF &base, qreal width,
               qreal letterHeight, const QColor &color)
{
    if (verdict == Verdict::None || verdict == Verdict::RootCause || width <= 0)
        return;
    const bool isStruck = verdict == Verdict::RuledOut;
    const QPointF start = base + QPointF(0, isStruck ? -letterHeight * strikeHeight : padding);
    sink.line(QLineF(start, start + QPointF(width, 0)), underline(verdict, color));
}
/** What a verdict looks like, on a bar that stands for a title. */
void verdictSample(PictureSink &sink, Verdict verdict, const QRectF &symbol,
                   const ClearColors &colors)
{
    const QRectF bar = symbol.adjusted(0, padding, 0, -2 * padding);
    sink.box(bar, 1, ClearColors::mixed(colors.ink(legendLevel), colors.paper(), sampleTint));
    const qreal letters = bar.height() / 2 / strikeHeight; // so that it is struck in its middle
    verdictOn(sink, verdict, QPointF(bar.left(), bar.bottom()), bar.width(), letters,
              colors.ink(sampleLevel));
}
/** How many have voted for a subject, in the colour of its bone. */
void votesOf(PictureSink &sink, const ClearLayout::Bone &bone, const ClearInk &ink)
{
    if (!bone.votesText)
        return;
    const QColor fill = bone.level > 1 ? ink.colour : ink.text;
    sink.box(bone.votes, bone.votes.height() / 2, fill);
    QRectF place(0, 0, bone.votesText->width(), bone.votesText->height());
    place.moveCenter(bone.votes.center());
    sink.text(*bone.votesText, place, ClearLabel::Side::Center, ClearColors::inkOn(fill));
}
} // namespace

void ClearPieces::fish(PictureSink &sink, const QPolygonF &backbone, const QPainterPath &tail,
                       const ClearColors &colors)
{
    sink.shape(closed(backbone), colors.backbone(), QColor(), 0);
    sink.shape(tail, colors.tail(), colors.outline(), fishLine);
}

void ClearPieces::head(PictureSink &sink, const QPainterPath &path, const ClearInk &ink,
                       const ClearColors &colors, bool standsOut)
{
    sink.shape(path, ink.box, colors.outline(), standsOut ? broadFishLine : fishLine);
}

void ClearPieces::label(PictureSink &sink, const ClearLayout::Bone &bone, const ClearInk &ink,
                        const ClearColors &colors)
{
    if (bone.level == 1) {
        sink.box(bone.box, boxRadius, ink.box);
        if (ink.verdict == Verdict::RootCause) {
            QPainterPath frame;
            const qreal inset = frameLine / 2;
            frame.addRoundedRect(bone.box.adjusted(inset, inset, -inset, -inset), boxRadius,
                                 boxRadius);
            sink.shape(frame, QColor(), colors.rootCause(), frameLine);
        }
    }
    if (ink.background.isValid())
        sink.box(ClearLabel::filled(bone.textRect), padding, ink.background);
    sink.text(*bone.text, bone.textRect, bone.side, ink.text);
    for (int line = 0; line < bone.text->lineCount(); ++line)
        verdictOn(sink, ink.verdict, bone.base(line), bone.text->lines()[std::size_t(line)].width,
                  bone.text->font().pixels(), ink.text);
    votesOf(sink, bone, ink);
    if (bone.level != 1)
        return;
    for (const QRectF &icon : {bone.status, bone.link}) {
        if (!icon.isNull()) // one in the colour of the box shows all the same
            sink.box(icon.adjusted(-ring, -ring, ring, ring), icon.width() / 2 + ring, Qt::white);
    }
}

void ClearPieces::badge(PictureSink &sink, const ClearText &text, const QRectF &rect,
                        const ClearColors &colors)
{
    sink.box(rect, rect.height() / 2, colors.badge());
    QRectF place(0, 0, text.width(), text.height());
    place.moveCenter(rect.center());
    sink.text(text, place, ClearLabel::Side::Center, colors.badgeInk());
}

void ClearPieces::legend(PictureSink &sink, const std::vector<ClearLegend::Entry> &entries,
                         const std::vector<ClearMeaning> &meanings, const ClearColors &colors)
{
    const QColor ink = colors.ink(legendLevel);
    const std::size_t count = std::min(entries.size(), meanings.size());
    for (std::size_t i = 0; i < count; ++i) {
        const QRectF &symbol = entries[i].symbol;
        if (!meanings[i].icon.isEmpty())
            sink.icon(symbol, meanings[i].icon);
        else if (meanings[i].isVotes)
            sink.box(symbol, symbol.height() / 2, ink); // round, as one digit is
        else if (meanings[i].colour.isValid())
            sink.box(symbol, symbol.width() * dotRadius, meanings[i].colour);
        else if (meanings[i].verdict == Verdict::RootCause)
            sink.box(symbol, padding, colors.rootCause());
        else
            verdictSample(sink, meanings[i].verdict, symbol, colors);
        sink.text(*entries[i].text, entries[i].textRect, ClearLabel::Side::Left, ink);
    }
}
