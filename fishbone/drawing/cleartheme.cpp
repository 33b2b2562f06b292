// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleartheme.h>

#include <algorithm>
#include <cmath>

namespace {
constexpr int shadeStep = 8; ///< of lightness, in 255

/** As light as the eye takes it, 0 to 1. */
qreal luminance(const QColor &color)
{
    const auto linear = [](qreal part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

std::vector<QColor> categoriesOf(ClearTheme::Palette palette)
{
    // In an order in which neighbours differ most, also for eyes that lack one kind of cone.
    switch (palette) {
    case ClearTheme::Palette::Gray:
        return {0x404040, 0x6e6e6e, 0x545454, 0x2b2b2b, 0x747474};
    case ClearTheme::Palette::Dark:
        return {0x7cc0f5, 0xf0a070, 0x74cf9a, 0xd19ae0, 0xc0cf70,
                0xf0909f, 0x5fcfd8, 0xd8b088, 0xa8b2f0, 0xeb9cc8};
    case ClearTheme::Palette::Distinct:
        break;
    }
    return {0x1f6fb4, 0x0f7c86, 0xb84d18, 0x5b21b6, 0x0067a5,
            0x007a5a, 0x7a5c00, 0x27348b, 0x404a54, 0x1d7a46};
}
} // namespace

ClearTheme::ClearTheme(Palette palette)
    : m_isDark(palette == Palette::Dark)
    , m_categories(categoriesOf(palette))
    , m_headFill(m_isDark ? 0x24503c : 0xd8f0e4)
    , m_headLine(m_isDark ? 0x5fc795 : 0x23935d)
    , m_tailFill(m_isDark ? 0x2f6e52 : 0x8fd6b4)
    , m_backbone(m_isDark ? 0x4fb684 : 0x3cb879)
    , m_badgeFill(m_isDark ? 0x3a424c : 0xe3e9ee)
{
    if (palette == Palette::Gray) {
        m_headFill = QColor(0xededed);
        m_headLine = m_backbone = QColor(0x6e6e6e);
        m_tailFill = QColor(0xc8c8c8);
        m_badgeFill = QColor(0xe6e6e6);
    }
}

QColor ClearTheme::ink(int level) const
{
    if (level < deepLevel)
        return QColor(m_isDark ? 0xe8edf2 : 0x1d2733);
    return QColor(m_isDark ? 0xb4bec9 : 0x56616e);
}

QColor ClearTheme::category(int row) const
{
    return m_categories[std::size_t(row) % m_categories.size()];
}

QColor ClearTheme::inkOn(const QColor &fill)
{
    const QColor light(Qt::white);
    const QColor dark(0x14181d);
    return contrast(fill, light) >= contrast(fill, dark) ? light : dark;
}

qreal ClearTheme::contrast(const QColor &one, const QColor &other)
{
    const qreal a = luminance(one) + 0.05;
    const qreal b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor ClearTheme::readable(QColor color, const QColor &below)
{
    const bool goesUp = luminance(below) < 0.18; // where both directions reach as far
    while (contrast(color, below) < leastContrast) {
        int hue;
        int saturation;
        int lightness;
        color.getHsl(&hue, &saturation, &lightness);
        if (lightness == (goesUp ? 255 : 0))
            break;
        lightness = std::clamp(lightness + (goesUp ? shadeStep : -shadeStep), 0, 255);
        color.setHsl(hue, saturation, lightness, color.alpha());
    }
    return color;
}
