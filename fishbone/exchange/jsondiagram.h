// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QCoreApplication>
#include <QString>

class QByteArray;
class QJsonDocument;
struct QJsonParseError;

/** Tells diagrams from what else is kept as JSON. */
class FISHBONE_EXPORT JsonDiagram
{
    Q_DECLARE_TR_FUNCTIONS(JsonDiagram)

public:
    /**
     * Why @p document, which is well-formed JSON, is no diagram: for the user, a clause that names
     * what it has instead. Empty when it is one, or when it holds nothing at all.
     */
    static QString reasonAgainst(const QJsonDocument &document);
    /** Why the text @p json, which was parsed with @p error, is no diagram; never empty. */
    static QString reasonAgainst(const QByteArray &json, const QJsonParseError &error);
};
