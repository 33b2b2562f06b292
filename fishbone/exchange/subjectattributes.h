// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVector>

class SubjectAttribute;
class TreeItem;

/** The attributes of a subject as texts, for the formats that carry them as such. */
namespace SubjectAttributes {

/** An attribute and its value as a text. */
struct Attribute
{
    QLatin1String key;              ///< as in the diagram format
    const SubjectAttribute *source; ///< null for a mark, which is a field beside the attributes

    /** The value as a text, empty for the value that a new subject has. */
    QString text(const TreeItem &subject) const;
    /** Stores the value of a text; false, with nothing changed, when it is none. */
    bool setText(TreeItem &subject, const QString &text) const;
};

/** All attributes that are exchanged, the title left aside, and behind them the marks of a team:
 * the verdict, the votes and the colour. */
const QVector<Attribute> &all();

/** The attribute of that key, which exists. */
const Attribute &named(QLatin1String key);

/** Several texts as one: separated by semicolons, with a backslash before a semicolon in a text. */
QString joined(const QStringList &texts);
/** The texts that joined() made one of. */
QStringList separated(const QString &text);

} // namespace SubjectAttributes
