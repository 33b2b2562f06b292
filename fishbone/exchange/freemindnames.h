// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/subjectattributes.h>

#include <QLatin1String>
#include <QString>

/** The names that mind maps have for the fields of a subject. */
namespace FreeMindNames {

inline const QLatin1String nodeName("node");
inline const QLatin1String titleName("TEXT");
inline const QLatin1String idName("ID");
inline const QLatin1String richTextName("richcontent");
inline const QLatin1String attributeName("attribute");
inline const QLatin1String noteType("NOTE");

/** The XML attribute that stands for a field of a subject; empty when none does. */
QString nativeName(const SubjectAttributes::Attribute &attribute);
/** Whether a field of a subject is an element with a name and a value. */
bool isNamedValue(const SubjectAttributes::Attribute &attribute);

/** The field that the XML attribute @p name stands for; null when none does. */
const SubjectAttributes::Attribute *attributeNamed(const QString &name);
/** The field that an element with a name and a value stands for; null when none does. Maps of older
 * versions have the uuid there too. */
const SubjectAttributes::Attribute *namedValue(const QString &name);

/** A parameter of a part of the program, with times in a form that can be read. */
QString parameterText(const QString &name, const QString &value);

} // namespace FreeMindNames
