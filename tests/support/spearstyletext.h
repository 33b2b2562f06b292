// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/style/spearstyle.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace TestSupport {

inline constexpr SpearStyle::SpearState allStates[] = {SpearStyle::ssNormal, SpearStyle::ssSelected,
                                                       SpearStyle::ssHovered, SpearStyle::ssLinked};

/** What a fresh style writes. */
inline QString freshText()
{
    return QStringLiteral(R"({"inheritanceParent":false,"spearStates":[],"textCount":6})");
}

inline QJsonObject parse(const QString &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("%s", qPrintable(error.errorString()));
    return document.object();
}

/** The JSON object of a style in one line, with the keys in alphabetical order. */
inline QString textOf(const SpearStyle &style)
{
    QJsonObject object;
    style.write(object);
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace TestSupport
