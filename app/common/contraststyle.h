// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/** Draws what shall be seen in colours that can be: the edges of boxes to check and of radio
 * buttons, and the arrows where a bar has more than it can show; all else as Qt's own style does.
 * That one draws the edges darker than the window, pale on a light desktop and as good as unseen on
 * a dark one, and the arrows in black. */
class ContrastStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** Makes it the style of the program where that is Qt's own. The style of a desktop stays. */
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

private:
    ContrastStyle();
};
