// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

/** How well what is drawn can be told from what it is drawn on. */
namespace Contrast {

constexpr double forText = 4.5;   ///< WCAG 2.1, 1.4.3
constexpr double forShapes = 3.0; ///< WCAG 2.1, 1.4.11

/** The relative luminance of WCAG 2.1. */
inline double luminanceOf(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

inline double between(const QColor &one, const QColor &other)
{
    const double first = luminanceOf(one) + 0.05;
    const double second = luminanceOf(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/** The pixels of @p picture by their colours. */
inline QHash<QRgb, int> colorsOf(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return counts;
}

/** What most of @p picture shows: what is behind a text. */
inline QColor backgroundOf(const QImage &picture)
{
    const QHash<QRgb, int> counts = colorsOf(picture);
    QRgb most = 0;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
        if (color.value() > counts.value(most))
            most = color.key();
    }
    return QColor(most);
}

/** How far anything in @p picture stands out from @p background. */
inline double greatestIn(const QImage &picture, const QColor &background)
{
    double greatest = 1;
    const QHash<QRgb, int> counts = colorsOf(picture);
    for (auto color = counts.cbegin(); color != counts.cend(); ++color)
        greatest = std::max(greatest, between(QColor(color.key()), background));
    return greatest;
}

} // namespace Contrast
