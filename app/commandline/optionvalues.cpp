// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/optionvalues.h>

#include <app/diagram/expansion.h>

#include <QRegularExpression>

#include <cmath>

std::optional<int> OptionValues::levelsFrom(const QString &text)
{
    if (text == QLatin1String("all"))
        return Expansion::allLevels;
    if (text == QLatin1String("none"))
        return 0;
    bool isNumber = false;
    const int levels = text.toInt(&isNumber);
    return isNumber && levels >= 0 ? std::make_optional(levels) : std::nullopt;
}

std::optional<QSize> OptionValues::sizeFrom(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,6})x([0-9]{1,6})$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    return size.isEmpty() ? std::nullopt : std::make_optional(size);
}

std::optional<double> OptionValues::scaleFrom(const QString &text)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    return isNumber && std::isfinite(scale) && scale > 0 ? std::make_optional(scale) : std::nullopt;
}

std::optional<QColor> OptionValues::colorFrom(const QString &text)
{
    // Asked first because the conversion complains about a name that it does not know.
    return QColor::isValidColor(text) ? std::make_optional(QColor(text)) : std::nullopt;
}
