// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/** Draws the crosses that close tabs in the colour of the text beside them, and all else as the
 * program's style does. That style has black crosses, which nobody sees on a dark desktop. */
class CrossStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** Has @p button, which closes a tab, be drawn so. */
    static void giveTo(QWidget *button);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;

private:
    CrossStyle() = default;
};
