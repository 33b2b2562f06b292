// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slidemarkup.h>

#include <QPainterPath>
#include <QRectF>

#include <cmath>

namespace SlideMarkup {

QByteArray measure(double value)
{
    return QByteArray::number(qint64(std::llround(value)));
}

QByteArray frame(const QRectF &rect, const QByteArray &attributes)
{
    return "<a:xfrm" + attributes + "><a:off x=\"" + measure(rect.x()) + "\" y=\"" +
           measure(rect.y()) + "\"/><a:ext cx=\"" + measure(rect.width()) + "\" cy=\"" +
           measure(rect.height()) + "\"/></a:xfrm>";
}

QByteArray groupFrame(const QRectF &rect)
{
    QByteArray group = frame(rect);
    group.insert(group.indexOf("</a:xfrm>"), "<a:chOff x=\"" + measure(rect.x()) + "\" y=\"" +
                                                 measure(rect.y()) + "\"/><a:chExt cx=\"" +
                                                 measure(rect.width()) + "\" cy=\"" +
                                                 measure(rect.height()) + "\"/>");
    return group;
}

QByteArray steps(const QPainterPath &path, const std::function<QPointF(const QPointF &)> &placed)
{
    const auto at = [&](int index) {
        const QPointF point = placed(path.elementAt(index));
        return "<a:pt x=\"" + measure(point.x()) + "\" y=\"" + measure(point.y()) + "\"/>";
    };
    QByteArray list;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            list += "<a:moveTo>" + at(i) + "</a:moveTo>";
        } else if (element.isLineTo()) {
            list += "<a:lnTo>" + at(i) + "</a:lnTo>";
        } else if (i + 2 < path.elementCount()) {
            list += "<a:cubicBezTo>" + at(i) + at(i + 1) + at(i + 2) + "</a:cubicBezTo>";
            i += 2;
        }
    }
    return list;
}

QByteArray named(int id, const QByteArray &name, bool isDecoration)
{
    const QByteArray begin = "<p:cNvPr id=\"" + QByteArray::number(id) + "\" name=\"" + name + "\"";
    if (!isDecoration)
        return begin + "/>";
    return begin + "><a:extLst><a:ext uri=\"{C183D7F6-B498-43B3-948B-1728B52AA6E4}\">"
                   "<adec:decorative "
                   "xmlns:adec=\"http://schemas.microsoft.com/office/drawing/2017/decorative\" "
                   "val=\"1\"/></a:ext></a:extLst></p:cNvPr>";
}

} // namespace SlideMarkup
