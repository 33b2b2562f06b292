// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/diagramlook.h>

#include <QJsonObject>
#include <QString>

#include <iterator>

namespace {

constexpr double narrowestLine = 40;
constexpr double widestLine = 10000;
constexpr int mostStoredLines = 20;

const QLatin1String wrapKey("wrap");
const QLatin1String linesKey("lines");
const QLatin1String widensKey("widens");
const QLatin1String headWidthKey("headWidth");
const QLatin1String sidesKey("sides");
const QLatin1String headKey("head");
const QLatin1String paletteKey("palette");
const QLatin1String buttonsKey("buttons");
const QLatin1String legendKey("legend");

// In the order of the enumerations.
const QLatin1String sidesNames[] = {QLatin1String("one"), QLatin1String("uneven"),
                                    QLatin1String("both")};
const QLatin1String headNames[] = {QLatin1String("right"), QLatin1String("left")};
const QLatin1String paletteNames[] = {QLatin1String("colour"),    QLatin1String("gray"),
                                      QLatin1String("dark"),      QLatin1String("warm"),
                                      QLatin1String("cool"),      QLatin1String("dark-gray"),
                                      QLatin1String("dark-warm"), QLatin1String("dark-cool")};

/** The number of the name in @p value, @p fallback when it is none of @p names. */
template <std::size_t count>
int numberOf(const QJsonValue &value, const QLatin1String (&names)[count], int fallback)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (value.toString() == names[i])
            return int(i);
    }
    return fallback;
}

bool isWidth(const QJsonValue &value)
{
    return value.toDouble() >= narrowestLine && value.toDouble() <= widestLine;
}

} // namespace

QJsonObject DiagramLook::Options::toJson() const
{
    return {
        {wrapKey, wrapLimit},
        {linesKey, wrapLines},
        {widensKey, widensLines},
        {headWidthKey, headWidth},
        {sidesKey, sidesNames[sides]},
        {headKey, headNames[isHeadLeft ? 1 : 0]},
        {paletteKey, paletteNames[palette]},
        {buttonsKey, hasButtons},
        {legendKey, hasLegend},
    };
}

DiagramLook::Options DiagramLook::Options::fromJson(const QJsonObject &json)
{
    Options options;
    if (isWidth(json.value(wrapKey)))
        options.wrapLimit = json.value(wrapKey).toDouble();
    const int lines = json.value(linesKey).toInt();
    if (lines >= 1 && lines <= mostStoredLines)
        options.wrapLines = lines;
    options.widensLines = json.value(widensKey).toBool(options.widensLines);
    if (isWidth(json.value(headWidthKey)))
        options.headWidth = json.value(headWidthKey).toDouble();
    options.sides = Sides(numberOf(json.value(sidesKey), sidesNames, options.sides));
    options.isHeadLeft = numberOf(json.value(headKey), headNames, options.isHeadLeft ? 1 : 0) == 1;
    options.palette = Palette(numberOf(json.value(paletteKey), paletteNames, options.palette));
    options.hasButtons = json.value(buttonsKey).toBool(options.hasButtons);
    options.hasLegend = json.value(legendKey).toBool(options.hasLegend);
    return options;
}
