// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>

class TreeItem;

/** What a subject of the diagram has beside its identity and its place, as the data base keeps it.
 */
namespace TaskFields {

/**
 * The attributes of @p subject, the fields included that the diagram format does not know. Texts
 * that are empty are left out, so that equal subjects have equal fields.
 */
QJsonObject of(const TreeItem &subject);
/** The same of fields that came from elsewhere: unknown and mistyped ones as the library reads
 * them. */
QJsonObject normalized(const QJsonObject &fields);

} // namespace TaskFields
