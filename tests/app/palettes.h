// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

/** The colours of desktops, as the style of one sets them. */
namespace Palettes {

inline QPalette light()
{
    return QPalette(QColor(0xef, 0xef, 0xef));
}

/** Each role has a colour of its own: what Qt makes of a dark window by itself has black texts
 * where something is disabled. */
inline QPalette dark()
{
    struct
    {
        QPalette::ColorRole role;
        QRgb color;
    } constexpr roles[] = {
        {QPalette::Window, 0xff31363b},
        {QPalette::WindowText, 0xffeff0f1},
        {QPalette::Base, 0xff232629},
        {QPalette::AlternateBase, 0xff2b2f33},
        {QPalette::Text, 0xffeff0f1},
        {QPalette::Button, 0xff31363b},
        {QPalette::ButtonText, 0xffeff0f1},
        {QPalette::BrightText, 0xffffffff},
        {QPalette::ToolTipBase, 0xff31363b},
        {QPalette::ToolTipText, 0xffeff0f1},
        {QPalette::PlaceholderText, 0xffa1a9b1},
        {QPalette::Highlight, 0xff2a6f97},
        {QPalette::HighlightedText, 0xffffffff},
        {QPalette::Link, 0xff5cb3e4},
        {QPalette::LinkVisited, 0xffb48ead},
        {QPalette::Light, 0xff40464c},
        {QPalette::Midlight, 0xff393e44},
        {QPalette::Mid, 0xff25292c},
        {QPalette::Dark, 0xff191c1e},
        {QPalette::Shadow, 0xff0e1011},
    };
    QPalette palette;
    for (const auto &each : roles)
        palette.setColor(each.role, QColor(each.color));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x7b, 0x80, 0x85));
    return palette;
}

} // namespace Palettes
