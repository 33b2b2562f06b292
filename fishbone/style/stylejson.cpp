// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/stylejson.h>

#include <QColor>
#include <QFont>
#include <QJsonObject>
#include <QPen>
#include <QStringList>

#include <array>
#include <limits>

namespace {

constexpr QLatin1String fontKey = StyleJson::key("font");
constexpr QLatin1String textColorKey = StyleJson::key("textColor");
constexpr QLatin1String textBkColorKey = StyleJson::key("textBkColor");
constexpr QLatin1String broderPenKey = StyleJson::key("broderPen");

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
/** The weight of @p font on the scale from 0 to 99 that Qt 5 has: the step nearest to it. */
int narrowWeight(const QFont &font)
{
    // Thin to Black, the hundreds from 100 to 900.
    static constexpr std::array<int, 9> steps{0, 12, 25, 50, 57, 63, 75, 81, 87};
    return steps[size_t(qBound(100, int(font.weight()), 900) + 50) / 100 - 1];
}
#endif

/**
 * The description of a font that every version of Qt reads, which is the one that Qt 5 writes. What
 * Qt 6 writes has more fields than Qt 5 accepts, and weights up to 1000.
 */
QString fontText(QFont font)
{
    // The fields have no way to hold a comma, and the style says nothing that the others do not.
    if (font.styleName().contains(QLatin1Char(',')))
        font.setStyleName({});
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QStringList fields{font.family(),
                       QString::number(font.pointSizeF()),
                       QString::number(font.pixelSize()),
                       QString::number(font.styleHint()),
                       QString::number(narrowWeight(font)),
                       QString::number(font.style()),
                       QString::number(int(font.underline())),
                       QString::number(int(font.strikeOut())),
                       QString::number(int(font.fixedPitch())),
                       QStringLiteral("0")};
    if (!font.styleName().isEmpty())
        fields.append(font.styleName());
    return fields.join(QLatin1Char(','));
#else
    return font.toString();
#endif
}

/**
 * The fields before the name of the style, where that holds a comma ("Book, Condensed"), which no
 * version of Qt reads; otherwise all of @p description.
 */
QString readableFontText(const QString &description)
{
    constexpr int plainFields = 10; // and one more with the name of the style
    constexpr int longForm = 16;    // the shortest description that has other fields after those
    const int fields = description.count(QLatin1Char(',')) + 1;
    if (fields <= plainFields + 1 || fields >= longForm)
        return description;
    return description.section(QLatin1Char(','), 0, plainFields - 1);
}

QJsonObject colorToJson(const QColor &color)
{
    return {{QStringLiteral("r"), color.red()},
            {QStringLiteral("g"), color.green()},
            {QStringLiteral("b"), color.blue()},
            {QStringLiteral("a"), color.alpha()}};
}

QColor colorFromJson(const QJsonObject &object)
{
    QColor color;
    color.setRgb(object[QLatin1String("r")].toInt(), object[QLatin1String("g")].toInt(),
                 object[QLatin1String("b")].toInt(), object[QLatin1String("a")].toInt());
    return color;
}

/** Its fraction cut off; a host may have set a width that no int holds. */
int wholeWidth(const QPen &pen)
{
    return int(qBound(0.0, pen.widthF(), qreal(std::numeric_limits<int>::max())));
}

QJsonObject penToJson(const QPen &pen)
{
    QJsonObject object = colorToJson(pen.color());
    object[QLatin1String("width")] = wholeWidth(pen);
    object[QLatin1String("style")] = int(pen.style());
    object[QLatin1String("capStyle")] = int(pen.capStyle());
    object[QLatin1String("joinStyle")] = int(pen.joinStyle());
    return object;
}

Qt::PenStyle penStyle(int value)
{
    return value >= Qt::NoPen && value <= Qt::CustomDashLine ? Qt::PenStyle(value) : Qt::NoPen;
}

Qt::PenCapStyle penCapStyle(int value)
{
    switch (value) {
    case Qt::SquareCap:
    case Qt::RoundCap:
        return Qt::PenCapStyle(value);
    default:
        return Qt::FlatCap;
    }
}

Qt::PenJoinStyle penJoinStyle(int value)
{
    switch (value) {
    case Qt::BevelJoin:
    case Qt::RoundJoin:
    case Qt::SvgMiterJoin:
        return Qt::PenJoinStyle(value);
    default:
        return Qt::MiterJoin;
    }
}

QPen penFromJson(const QJsonObject &object)
{
    return QPen(colorFromJson(object), object[QLatin1String("width")].toInt(),
                penStyle(object[QLatin1String("style")].toInt()),
                penCapStyle(object[QLatin1String("capStyle")].toInt()),
                penJoinStyle(object[QLatin1String("joinStyle")].toInt()));
}

} // namespace

QJsonObject StyleJson::fromState(const SpearStyle &style, SpearStyle::SpearState state)
{
    QJsonObject object;
    if (const QFont *font = style.textFont(state))
        object[fontKey] = fontText(*font);
    if (const QColor color = style.textColor(state); color.isValid())
        object[textColorKey] = colorToJson(color);
    if (const QColor color = style.textBkColor(state); color.isValid())
        object[textBkColorKey] = colorToJson(color);
    if (const QPen *pen = style.broderPen(state))
        object[broderPenKey] = penToJson(*pen);
    return object;
}

void StyleJson::readState(SpearStyle &style, SpearStyle::SpearState state,
                          const QJsonObject &object)
{
    // Qt warns about an empty description, and a font that is not there is nothing to warn about.
    const QString description = readableFontText(object[fontKey].toString());
    if (QFont font; !description.isEmpty() && font.fromString(description))
        style.setTextFont(state, font);
    if (const QJsonObject color = object[textColorKey].toObject(); !color.isEmpty())
        style.setTextColor(state, colorFromJson(color));
    if (const QJsonObject color = object[textBkColorKey].toObject(); !color.isEmpty())
        style.setTextBkColor(state, colorFromJson(color));
    if (const QJsonObject pen = object[broderPenKey].toObject(); !pen.isEmpty())
        style.setBroderPen(state, penFromJson(pen));
}
