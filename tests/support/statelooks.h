// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QJsonObject>
#include <QPen>

#include <fishbone/style/spearstyle.h>

namespace TestSupport {

/** How one state of the tests' style looks. No two states share a value. */
struct StateLook
{
    QColor text;
    QColor background;
    QPen pen;
    QFont font;
};

inline StateLook lookOf(SpearStyle::SpearState state)
{
    const auto font = [](int pixels, bool bold) {
        QFont made = QApplication::font();
        made.setPixelSize(pixels);
        made.setBold(bold);
        return made;
    };
    switch (state) {
    case SpearStyle::ssSelected:
        return {{0, 0, 160}, {255, 224, 160}, {QColor(0, 130, 130), 4}, font(15, true)};
    case SpearStyle::ssHovered:
        return {{120, 60, 0}, {200, 240, 255}, {QColor(200, 130, 0), 5}, font(17, false)};
    case SpearStyle::ssLinked:
        return {{90, 0, 120}, {220, 255, 200}, {QColor(0, 140, 0), 2}, font(13, true)};
    case SpearStyle::ssNormal:
        break;
    }
    return {{40, 40, 40}, {255, 200, 255}, {QColor(150, 0, 150), 3}, font(14, false)};
}

/** Gives @p style the four looks; titles are shown up to @p textCount characters. */
inline void setLooks(SpearStyle &style, int textCount = 0)
{
    style.setTextCount(textCount);
    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i) {
        const auto state = SpearStyle::SpearState(i);
        const StateLook look = lookOf(state);
        style.setTextFont(state, look.font);
        style.setTextColor(state, look.text);
        style.setTextBkColor(state, look.background);
        style.setBroderPen(state, look.pen);
    }
}

/** The same as a node's own style in the diagram format. */
inline QJsonObject styleWithLooks(int textCount = 0)
{
    SpearStyle style;
    setLooks(style, textCount);
    QJsonObject object;
    style.write(object);
    return object;
}

} // namespace TestSupport
