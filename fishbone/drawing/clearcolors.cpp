// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcolors.h>

#include <array>

namespace {
using Colors = std::array<QRgb, 8>;

// Neighbours differ in lightness as well as in hue, for people who do not tell hues apart.
constexpr Colors distinct{0xff1f6fb4, 0xffa8430f, 0xff1d6b3a, 0xff8a3f9b,
                          0xff0d5c75, 0xffb03048, 0xff5b5b10, 0xff46508f};
constexpr Colors gray{0xff3a3a3a, 0xff666666, 0xff4c4c4c, 0xff707070,
                      0xff404040, 0xff5c5c5c, 0xff505050, 0xff6a6a6a};
constexpr Colors dark{0xff7db8ee, 0xfff0a070, 0xff74cf93, 0xffd09be0,
                      0xff6fc9d6, 0xfff092a4, 0xffcfcf70, 0xffa9b3ee};
} // namespace

ClearColors::ClearColors(DiagramLook::Palette palette)
    : m_palette(palette)
{
}

QColor ClearColors::category(int category) const
{
    const Colors &colors = isDark() ? dark : isGray() ? gray : distinct;
    return QColor(colors[std::size_t(qMax(0, category)) % colors.size()]);
}

QColor ClearColors::ink(int level) const
{
    if (level == 0)
        return isDark() ? QColor(0xf2f6f9) : QColor(0x14231b);
    if (level == 1)
        return isDark() ? QColor(0x10161c) : QColor(Qt::white);
    if (level == 2)
        return isDark() ? QColor(0xe8edf2) : QColor(0x1d2733);
    return isDark() ? QColor(0xb9c4ce) : QColor(0x4c5763);
}

QColor ClearColors::head() const
{
    if (isDark())
        return QColor(0x1f4a36);
    return isGray() ? QColor(0xe8e8e8) : QColor(0xd8f0e4);
}

QColor ClearColors::outline() const
{
    if (isDark())
        return QColor(0x63c795);
    return isGray() ? QColor(0x505050) : QColor(0x23935d);
}

QColor ClearColors::backbone() const
{
    return isGray() ? QColor(0x808080) : QColor(0x3cb879);
}

QColor ClearColors::badge() const
{
    return isDark() ? QColor(0x3a4652) : QColor(0xdde4ea);
}

QColor ClearColors::badgeInk() const
{
    return isDark() ? QColor(0xe8edf2) : QColor(0x2a3643);
}
