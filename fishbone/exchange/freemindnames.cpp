// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/freemindnames.h>

#include <fishbone/model/jsonnodes.h>

#include <QDateTime>

namespace FreeMindNames {

QString nativeName(const SubjectAttributes::Attribute &attribute)
{
    if (attribute.key == JsonNodes::uuidKey)
        return idName;
    if (attribute.key == JsonNodes::urlKey)
        return QStringLiteral("LINK");
    if (attribute.key == JsonNodes::createDateKey)
        return QStringLiteral("CREATED");
    return QString();
}

bool isNamedValue(const SubjectAttributes::Attribute &attribute)
{
    return nativeName(attribute).isEmpty() && attribute.key != JsonNodes::detailKey;
}

const SubjectAttributes::Attribute *attributeNamed(const QString &name)
{
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        if (nativeName(attribute) == name)
            return &attribute;
    }
    return nullptr;
}

const SubjectAttributes::Attribute *namedValue(const QString &name)
{
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        if (name == attribute.key &&
            (isNamedValue(attribute) || attribute.key == JsonNodes::uuidKey))
            return &attribute;
    }
    return nullptr;
}

QString parameterText(const QString &name, const QString &value)
{
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    const bool isTime = isNumber && name == QLatin1String("REMINDUSERAT");
    return isTime ? QDateTime::fromMSecsSinceEpoch(number, Qt::UTC).toString(Qt::ISODate) : value;
}

} // namespace FreeMindNames
