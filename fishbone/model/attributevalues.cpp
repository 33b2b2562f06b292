// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/attributevalues.h>

#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

#include <QJsonArray>

#include <cmath>

qint64 AttributeValues::dateFrom(const QJsonValue &value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double msecs = value.toDouble();
    return msecs > -limit && msecs < limit ? std::llround(msecs) : 0;
}

QJsonObject AttributeValues::styleOf(const TreeItem &subject)
{
    QJsonObject style;
    if (subject.spearStyle())
        subject.spearStyle()->write(style);
    return style;
}

QStringList AttributeValues::textsFrom(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray elements = value.toArray();
    for (const QJsonValue &element : elements)
        texts.append(element.toString());
    return texts;
}
