// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/base/onepass.h>
#include <fishbone/base/programfolder.h>
#include <fishbone/style/globalstylelookups.h>
#include <fishbone/style/stylejson.h>

#include <QCoreApplication>
#include <QFile>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPen>

namespace {

constexpr QLatin1String inheritanceParentKey = StyleJson::key("inheritanceParent");
constexpr QLatin1String textCountKey = StyleJson::key("textCount");
constexpr QLatin1String spearStatesKey = StyleJson::key("spearStates");
constexpr QLatin1String stateKey = StyleJson::key("state");

int lookups = 0;

} // namespace

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
            StyleJson::readState(*this, SpearState(state), stateObject);
    }
}

void SpearStyle::write(QJsonObject &object) const
{
    QJsonArray states;
    for (int state = 0; state < stateCount; ++state) {
        QJsonObject stateObject = StyleJson::fromState(*this, SpearState(state));
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
