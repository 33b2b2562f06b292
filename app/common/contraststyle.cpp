// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/contraststyle.h>

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QToolBar>

namespace {

QString ownStyle()
{
    return QStringLiteral("fusion");
}

/** Halfway between the text of a window and what is behind it. */
QColor edgeColor(const QPalette &palette)
{
    const QColor &text = palette.color(QPalette::WindowText);
    const QColor &behind = palette.color(QPalette::Window);
    const auto mean = [](int one, int other) { return (one + other) / 2; };
    return QColor(mean(text.red(), behind.red()), mean(text.green(), behind.green()),
                  mean(text.blue(), behind.blue()));
}

/** Whether @p widget shows what a bar of tools or menus has no room for. */
bool isExtension(const QWidget *widget)
{
    return widget && (widget->objectName() == QLatin1String("qt_toolbar_ext_button") ||
                      widget->objectName() == QLatin1String("qt_menubar_ext_button"));
}

} // namespace

ContrastStyle::ContrastStyle()
    : QProxyStyle(ownStyle())
{
}

void ContrastStyle::install()
{
    if (QApplication::style()->objectName().compare(ownStyle(), Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new ContrastStyle); // which takes it over
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    // The edge of what has the focus is in the colour of that.
    const State focused = State_HasFocus | State_KeyboardFocusChange;
    if ((!isRound && element != PE_IndicatorCheckBox) || (option->state & focused) == focused)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edgeColor(option->palette));
    painter->setBrush(Qt::NoBrush);
    const QRect box = option->rect;
    if (isRound) { // where the base style has it
        const qreal radius = (box.width() + (box.width() + 1) % 2) / 2.0 - 1;
        painter->drawEllipse(QPointF(box.center() + QPoint(1, 1)), radius, radius);
    } else {
        painter->drawRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter->restore();
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    if (element != CE_ToolButtonLabel || !isExtension(widget)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    constexpr qreal arm = 3;
    constexpr qreal apart = 4;
    const auto *const bar = qobject_cast<const QToolBar *>(widget->parentWidget());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option->palette.color(QPalette::WindowText), 1.4, Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    painter->translate(QRectF(option->rect).center());
    if (bar && bar->orientation() == Qt::Vertical)
        painter->rotate(90);
    else if (option->direction == Qt::RightToLeft)
        painter->scale(-1, 1);
    for (const qreal tip : {0.0, apart})
        painter->drawPolyline(QPolygonF({{tip - arm, -arm}, {tip, 0}, {tip - arm, arm}}));
    painter->restore();
}
