// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/base/onepass.h>
#include <fishbone/base/programfolder.h>
#include <fishbone/style/globalstylelookups.h>

#include <QCoreApplication>
#include <QFile>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPen>
#include <QStringList>

#include <limits>

namespace {

/** Measured by the compiler, so that the keys are there before any code runs. */
template <int size>
constexpr QLatin1String key(const char (&name)[size])
{
    return QLatin1String(name, size - 1);
}

constexpr QLatin1String inheritanceParentKey = key("inheritanceParent");
constexpr QLatin1String textCountKey = key("textCount");
constexpr QLatin1String spearStatesKey = key("spearStates");
constexpr QLatin1String stateKey = key("state");
constexpr QLatin1String fontKey = key("font");
constexpr QLatin1String textColorKey = key("textColor");
constexpr QLatin1String textBkColorKey = key("textBkColor");
constexpr QLatin1String broderPenKey = key("broderPen");

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

QJsonObject stateToJson(const SpearStyle &style, SpearStyle::SpearState state)
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

void readState(SpearStyle &style, SpearStyle::SpearState state, const QJsonObject &object)
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

} // namespace

namespace {
int lookups = 0;
}

int globalStyleLookupCount()
{
    return lookups;
}

bool SpearStyle::m_isGlobalInited = false;

SpearStyle::SpearStyle() = default;

SpearStyle::~SpearStyle() = default;

QFont *SpearStyle::textFont(SpearState state) const
{
    Q_ASSERT(state >= 0 && state < stateCount);
    return m_textFonts[state].get();
}

void SpearStyle::setTextFont(SpearState state, const QFont &font)
{
    Q_ASSERT(state >= 0 && state < stateCount);
    m_textFonts[state] = std::make_unique<QFont>(font);
}

QColor SpearStyle::textColor(SpearState state) const
{
    Q_ASSERT(state >= 0 && state < stateCount);
    return m_textColors[state];
}

void SpearStyle::setTextColor(SpearState state, const QColor &color)
{
    Q_ASSERT(state >= 0 && state < stateCount);
    m_textColors[state] = color;
}

QColor SpearStyle::textBkColor(SpearState state) const
{
    Q_ASSERT(state >= 0 && state < stateCount);
    return m_textBkColors[state];
}

void SpearStyle::setTextBkColor(SpearState state, const QColor &color)
{
    Q_ASSERT(state >= 0 && state < stateCount);
    m_textBkColors[state] = color;
}

QPen *SpearStyle::broderPen(SpearState state) const
{
    Q_ASSERT(state >= 0 && state < stateCount);
    return m_broderPens[state].get();
}

void SpearStyle::setBroderPen(SpearState state, const QPen &pen)
{
    Q_ASSERT(state >= 0 && state < stateCount);
    m_broderPens[state] = std::make_unique<QPen>(pen);
}

void SpearStyle::setTextCount(int count)
{
    m_textCount = count;
}

void SpearStyle::read(const QJsonObject &object)
{
    if (object.isEmpty())
        return;
    m_inheritanceParent = object[inheritanceParentKey].toBool();
    m_textCount = object[textCountKey].toInt();
    const QJsonArray states = object[spearStatesKey].toArray();
    for (const QJsonValue &element : states) {
        const QJsonObject stateObject = element.toObject();
        const int state = stateObject[stateKey].toInt();
        if (state >= 0 && state < stateCount)
            readState(*this, SpearState(state), stateObject);
    }
}

void SpearStyle::write(QJsonObject &object) const
{
    QJsonArray states;
    for (int state = 0; state < stateCount; ++state) {
        QJsonObject stateObject = stateToJson(*this, SpearState(state));
        if (stateObject.isEmpty())
            continue;
        stateObject[stateKey] = state;
        states.append(stateObject);
    }
    object = QJsonObject();
    object[inheritanceParentKey] = m_inheritanceParent;
    object[textCountKey] = m_textCount;
    object[spearStatesKey] = states;
}

QString SpearStyle::spearStyleFilePath()
{
    return programFolder() + QLatin1String("global.spearstyle");
}

SpearStyle *SpearStyle::global()
{
    static SpearStyle style;
    static OncePerPass lookup;
    // Without an application object the folder of the program is not known.
    if (m_isGlobalInited || !QCoreApplication::instance() || !lookup.isDue())
        return &style;
    ++lookups;
    QFile file(spearStyleFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return &style;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isNull()) {
        style.read(document.object());
        m_isGlobalInited = true;
    }
    return &style;
}

void SpearStyle::saveGlobal()
{
    if (!m_isGlobalInited || !QCoreApplication::instance())
        return;
    QJsonObject object;
    global()->write(object);
    replaceFile(spearStyleFilePath(), QJsonDocument(object).toJson());
}
