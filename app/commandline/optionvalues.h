// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QSize>
#include <QString>

#include <optional>

/** What the values of options mean; nothing for a value that makes no sense. */
namespace OptionValues {

/** Of "all", "none" or a number of levels below the main bones. */
std::optional<int> levelsFrom(const QString &text);
/** Of a width and a height, "1600x900". */
std::optional<QSize> sizeFrom(const QString &text);
/** Of a number above 0. */
std::optional<double> scaleFrom(const QString &text);
/** Of the name of a colour or "#rrggbb". */
std::optional<QColor> colorFrom(const QString &text);

} // namespace OptionValues
