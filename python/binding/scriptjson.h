// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

/** What the module passes from Python to the binding and back: JSON objects as text. */
namespace ScriptJson {

/** The object that @p json is; an empty one when it is none. */
inline QJsonObject objectOf(const QString &json)
{
    return QJsonDocument::fromJson(json.toUtf8()).object();
}

/** The text of @p object. */
inline QString textOf(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace ScriptJson
