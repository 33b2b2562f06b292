// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/jsondiagram.h>

#include <fishbone/base/jsonerrors.h>
#include <fishbone/model/jsonnodes.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace {

/** The first few names of what @p object holds. */
QString namesIn(const QJsonObject &object)
{
    constexpr int most = 6;
    QStringList names;
    for (const QString &name : object.keys().mid(0, most))
        names.append(QLatin1Char('"') + name.left(40) + QLatin1Char('"'));
    return names.join(QLatin1String(", "));
}

} // namespace

QString JsonDiagram::reasonAgainst(const QJsonDocument &document)
{
    if (document.isArray() && !document.array().isEmpty())
        return tr("it is a JSON list, not a diagram, which is an object with a \"title\" and "
                  "\"children\"");
    const QJsonObject object = document.object();
    const bool isDiagram = object.isEmpty() || object.contains(JsonNodes::titleKey) ||
                           object.contains(JsonNodes::childrenKey);
    if (!isDiagram)
        return tr("it is JSON of another kind: a diagram has a \"title\" and \"children\", this "
                  "has "
                  "%1")
            .arg(namesIn(object));
    const QJsonValue title = object.value(JsonNodes::titleKey);
    const QJsonValue children = object.value(JsonNodes::childrenKey);
    if (!title.isUndefined() && !title.isString() && !title.isNull())
        return tr("it is JSON of another kind: its \"title\" is no text");
    if (!children.isUndefined() && !children.isArray() && !children.isNull())
        return tr("it is JSON of another kind: its \"children\" are no list");
    return QString();
}

QString JsonDiagram::reasonAgainst(const QByteArray &json, const QJsonParseError &error)
{
    const bool isWellFormed = error.error == QJsonParseError::NoError;
    const QString reason = isWellFormed ? reasonAgainst(QJsonDocument::fromJson(json)) : QString();
    return reason.isEmpty() ? JsonErrors::reason(json, error) : reason;
}
