// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcolors.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {
using Colors = std::array<QRgb, 10>;

// In an order in which neighbours differ most, also for eyes that lack one kind of cone.
constexpr Colors distinct{0xff1f6fb4, 0xff0f7c86, 0xffb84d18, 0xff5b21b6, 0xff0067a5,
                          0xff007a5a, 0xff7a5c00, 0xff27348b, 0xff404a54, 0xff1d7a46};
constexpr Colors gray{0xff3a3a3a, 0xff666666, 0xff4c4c4c, 0xff707070, 0xff404040,
                      0xff5c5c5c, 0xff505050, 0xff6a6a6a, 0xff464646, 0xff747474};
constexpr Colors dark{0xff7db8ee, 0xff6fc9d6, 0xfff0a070, 0xffd09be0, 0xff74cf93,
                      0xffcfcf70, 0xfff092a4, 0xffa9b3ee, 0xffd8b088, 0xffb8d0c8};

/** As light as the eye takes it, 0 to 1. */
qreal luminance(const QColor &color)
{
    const auto linear = [](qreal part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}
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

QColor ClearColors::paper() const
{
    return isDark() ? QColor(0x1e2126) : QColor(Qt::white);
}

QColor ClearColors::tail() const
{
    if (isDark())
        return QColor(0x2f6e52);
    return isGray() ? QColor(0xc8c8c8) : QColor(0x8fd6b4);
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

QColor ClearColors::rootCause() const
{
    if (isGray())
        return QColor(0x202020);
    return isDark() ? QColor(0xf28b82) : QColor(0xb3261e);
}

QColor ClearColors::readable(const QColor &ink, const QColor &below, qreal enough)
{
    constexpr int steps = 10;
    const QColor best = inkOn(below);
    for (int step = 0; step < steps; ++step) {
        const QColor tried = mixed(best, ink, qreal(step) / steps);
        if (contrast(tried, below) >= enough)
            return tried;
    }
    return best;
}

QColor ClearColors::mixed(const QColor &color, const QColor &below, qreal part)
{
    const auto mix = [part](qreal a, qreal b) { return part * a + (1 - part) * b; };
    return QColor::fromRgbF(mix(color.redF(), below.redF()), mix(color.greenF(), below.greenF()),
                            mix(color.blueF(), below.blueF()));
}

QColor ClearColors::inkOn(const QColor &fill)
{
    const QColor light(Qt::white);
    const QColor night(0x10161c);
    for (const QColor &ink : {light, night}) {
        if (contrast(fill, ink) >= enoughForText)
            return ink;
    }
    return Qt::black; // on some colours between light and dark nothing else will do
}

qreal ClearColors::contrast(const QColor &one, const QColor &other)
{
    const qreal a = luminance(one) + 0.05;
    const qreal b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}
