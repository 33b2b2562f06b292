// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/** Draws the edges of boxes to check and of radio buttons so that they can be told from what is
 * behind them, and all else as Qt's own style does. That one makes them darker than the window:
 * pale on a light desktop, and as good as unseen on a dark one. */
class BoxStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** Makes it the style of the program where that is Qt's own. The style of a desktop stays. */
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;

private:
    BoxStyle();
};
