// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

class QByteArray;
struct QJsonParseError;

/** Why a file cannot be loaded, as clauses for the user. */
class LoadFailure
{
    Q_DECLARE_TR_FUNCTIONS(LoadFailure)

public:
    /** What keeps the file @p path from being loaded. */
    static QString reasonOf(const QString &path);
    /** What keeps @p json, which was parsed with @p error, from being read as a document. */
    static QString reasonOfText(const QByteArray &json, const QJsonParseError &error);
};
