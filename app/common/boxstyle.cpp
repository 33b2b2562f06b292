// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/boxstyle.h>

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace {

QString ownStyle()
{
    return QStringLiteral("fusion");
}

/** Halfway between the text of a window and what is behind it. */
QColor edgeColor(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor behind = palette.color(QPalette::Window);
    const auto mean = [](int one, int other) { return (one + other) / 2; };
    return QColor(mean(text.red(), behind.red()), mean(text.green(), behind.green()),
                  mean(text.blue(), behind.blue()));
}

} // namespace

BoxStyle::BoxStyle()
    : QProxyStyle(ownStyle())
{
}

void BoxStyle::install()
{
    if (QApplication::style()->objectName().compare(ownStyle(), Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new BoxStyle); // which takes it over
}

void BoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
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
