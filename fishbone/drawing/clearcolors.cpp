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

constexpr Colors warm{0xffa34308, 0xff7a5c00, 0xff8c1d50, 0xff5d4037, 0xff8a5a00,
                      0xff7d3560, 0xff96451f, 0xff6b5a1e, 0xff9b3a4e, 0xff6d3b0f};
constexpr Colors cool{0xff1f6fb4, 0xff00695c, 0xff27348b, 0xff0f7c86, 0xff455a64,
                      0xff2f5fa8, 0xff2e6b3f, 0xff4a4fa3, 0xff006978, 0xff1d3f6e};

constexpr Colors darkGray{0xffc8c8c8, 0xffa0a0a0, 0xffb8b8b8, 0xff989898, 0xffd4d4d4,
                          0xffacacac, 0xffbebebe, 0xff9c9c9c, 0xffc2c2c2, 0xff949494};
constexpr Colors darkWarm{0xfff0a070, 0xffe8c468, 0xfff092a4, 0xffd8b088, 0xfff2b84b,
                          0xffe39ac0, 0xfff4b79a, 0xffd6c47c, 0xfff4a0a0, 0xffdda15e};
constexpr Colors darkCool{0xff7db8ee, 0xff5fd0c0, 0xffa9b3ee, 0xff6fc9d6, 0xffb0c4ce,
                          0xff9cc3f0, 0xff86cfa0, 0xffbcb8f4, 0xff60cbe0, 0xffa0d0c8};

/** All colours that a palette has of its own. */
struct Scheme
{
    Colors categories;
    QRgb head;
    QRgb tail;
    QRgb outline;
    QRgb backbone;
};

// In the order of DiagramLook::Palette.
constexpr std::array<Scheme, 8> schemes{{
    {distinct, 0xffd8f0e4, 0xff8fd6b4, 0xff23935d, 0xff3cb879},
    {gray, 0xffe8e8e8, 0xffc8c8c8, 0xff505050, 0xff808080},
    {dark, 0xff1f4a36, 0xff2f6e52, 0xff63c795, 0xff3cb879},
    {warm, 0xfffbe6d4, 0xfff0b48a, 0xffb8480f, 0xffd9793f},
    {cool, 0xffdbe9f6, 0xff9cc3e6, 0xff2b6cb0, 0xff5b9bd5},
    {darkGray, 0xff3a3a3a, 0xff5a5a5a, 0xffb0b0b0, 0xff909090},
    {darkWarm, 0xff4a2a17, 0xff7a4526, 0xffe8945a, 0xffd9793f},
    {darkCool, 0xff1c3450, 0xff2d547d, 0xff7db8ee, 0xff5b9bd5},
}};

const Scheme &schemeOf(DiagramLook::Palette palette)
{
    const auto place = std::size_t(palette);
    return schemes[place < schemes.size() ? place : 0];
}

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
    const Colors &colors = schemeOf(m_palette).categories;
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
    return QColor(schemeOf(m_palette).head);
}

QColor ClearColors::paper() const
{
    return isDark() ? QColor(0x1e2126) : QColor(Qt::white);
}

QColor ClearColors::tail() const
{
    return QColor(schemeOf(m_palette).tail);
}

QColor ClearColors::outline() const
{
    return QColor(schemeOf(m_palette).outline);
}

QColor ClearColors::backbone() const
{
    return QColor(schemeOf(m_palette).backbone);
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
        return isDark() ? QColor(0xe8e8e8) : QColor(0x202020);
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
