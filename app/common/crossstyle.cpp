// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/crossstyle.h>

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

void CrossStyle::giveTo(QWidget *button)
{
    if (qobject_cast<const CrossStyle *>(button->style()))
        return;
    auto *const style = new CrossStyle;
    style->setParent(button); // a widget does not own its style
    button->setStyle(style);
}

void CrossStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (element != PE_IndicatorTabClose) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    constexpr double arm = 4;
    constexpr double width = 1.6;
    constexpr double corner = 3;
    const QPalette &palette = option->palette;
    const QPointF middle = QRectF(option->rect).center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option->state.testFlag(State_MouseOver)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette.brush(QPalette::Mid));
        painter->drawRoundedRect(QRectF(option->rect), corner, corner);
    }
    painter->setPen(QPen(palette.color(QPalette::WindowText), width, Qt::SolidLine, Qt::RoundCap));
    for (const double side : {-1.0, 1.0}) {
        const QPointF end(arm, side * arm);
        painter->drawLine(middle - end, middle + end);
    }
    painter->restore();
}
