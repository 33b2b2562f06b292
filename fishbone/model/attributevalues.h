// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

class TreeItem;

/** Values of attributes between nodes and the diagram format, where that is more than a cast. */
namespace AttributeValues {

/** An instant as a file holds it; one that 64 bits cannot hold counts as unset. */
qint64 dateFrom(const QJsonValue &value);
/** The texts of an array; an element of another kind counts as empty, another value as no array. */
QStringList textsFrom(const QJsonValue &value);
/** What the own style of @p subject is written as, empty when it has none. */
QJsonObject styleOf(const TreeItem &subject);

} // namespace AttributeValues
