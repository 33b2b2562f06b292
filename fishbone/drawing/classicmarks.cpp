// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/classicmarks.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

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
    const QTextDocument &document = *title.document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const QRectF text = line.naturalTextRect().translated(corner);
            const qreal base = text.top() + line.ascent();
            const qreal y = isThrough ? base - line.ascent() * 0.3 : base + markWidth;
            painter.drawLine(QLineF(text.left(), y, text.right(), y));
        }
    }
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
