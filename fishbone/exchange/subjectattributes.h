// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <array>

class TreeItem;

/** The attributes of a subject as texts, for the formats that carry them as such. */
namespace SubjectAttributes {

struct Attribute
{
    QLatin1String key; ///< as in the diagram format
    /** The value as a text, empty for the value that a new subject has. */
    QString (*text)(const TreeItem &subject);
    /** Stores the value of a text; false, with nothing changed, when it is none. */
    bool (*setText)(TreeItem &subject, const QString &text);
};

/** All attributes but the title, the place in the tree and the style. */
const std::array<Attribute, 15> &all();

/** The attribute of that key, which exists. */
const Attribute &named(QLatin1String key);

/** Several texts as one: separated by semicolons, with a backslash before a semicolon in a text. */
QString joined(const QStringList &texts);
/** The texts that joined() made one of. */
QStringList separated(const QString &text);

} // namespace SubjectAttributes
