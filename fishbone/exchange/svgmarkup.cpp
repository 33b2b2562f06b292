// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/svgmarkup.h>

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPen>

#include <algorithm>

namespace SvgMarkup {

QByteArray number(qreal value)
{
    QByteArray out = QByteArray::number(value, 'f', 1);
    if (out.endsWith(".0"))
        out.chop(2);
    return out == "-0" ? QByteArray("0") : out;
}

QByteArray point(const QPointF &at)
{
    return number(at.x()) + ' ' + number(at.y());
}

QByteArray paint(const char *name, const QColor &color)
{
    if (!color.isValid() || color.alpha() == 0)
        return QByteArray(" ") + name + "=\"none\"";
    QByteArray out = QByteArray(" ") + name + "=\"" + color.name().toLatin1() + '"';
    if (color.alpha() < 255)
        out += QByteArray(" ") + name + "-opacity=\"" + number(color.alphaF()) + '"';
    return out;
}

QByteArray pathData(const QPainterPath &path)
{
    QByteArray out;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo())
            out += 'M';
        else if (element.isLineTo())
            out += 'L';
        else if (element.type == QPainterPath::CurveToElement)
            out += 'C';
        else
            out += ' ';
        out += point(element);
    }
    return out + 'Z';
}

QByteArray dashes(const QPen &pen)
{
    QByteArray out;
    const qreal width = std::max(pen.widthF(), 1.0);
    if (pen.style() != Qt::SolidLine) {
        out += " stroke-dasharray=\"";
        for (const qreal dash : pen.dashPattern())
            out += number(dash * width) + ' ';
        out.chop(1);
        out += '"';
    }
    if (pen.capStyle() != Qt::RoundCap)
        out += pen.capStyle() == Qt::FlatCap ? " stroke-linecap=\"butt\""
                                             : " stroke-linecap=\"square\"";
    return out;
}

QByteArray fontOf(const ClearFont &font)
{
    QByteArray out = " font-size=\"" + number(font.pixels()) + '"';
    if (font.font().weight() >= QFont::DemiBold)
        out += " font-weight=\"bold\"";
    if (font.font().italic())
        out += " font-style=\"italic\"";
    return out;
}

} // namespace SvgMarkup
