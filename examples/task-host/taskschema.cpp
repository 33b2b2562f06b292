// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskschema.h>

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <QVector>

namespace {

const QVector<QStringList> &migrations()
{
    static const QVector<QStringList> all{
        {QStringLiteral("CREATE TABLE task (uuid TEXT PRIMARY KEY, parent TEXT NOT NULL,"
                        " position BIGINT NOT NULL, fields TEXT NOT NULL)")},
        {QStringLiteral("ALTER TABLE task ADD COLUMN version BIGINT NOT NULL DEFAULT 0"),
         QStringLiteral("CREATE INDEX task_version ON task (version)"),
         QStringLiteral("CREATE TABLE edit (revision BIGINT PRIMARY KEY, id TEXT NOT NULL UNIQUE,"
                        " author TEXT NOT NULL, made_at BIGINT NOT NULL)"),
         // What is there already is the first revision, so that it is news for everybody.
         QStringLiteral("INSERT INTO edit SELECT 1, 'migration', '', 0 FROM task LIMIT 1"),
         QStringLiteral("UPDATE task SET version = 1")},
        {QStringLiteral("CREATE TABLE change (revision BIGINT NOT NULL, uuid TEXT NOT NULL,"
                        " what TEXT NOT NULL, PRIMARY KEY (revision, uuid))")},
    };
    return all;
}

/** The version of the tables that are there, 0 for none. */
int presentVersion(QSqlDatabase &database)
{
    if (!database.tables().contains(QStringLiteral("schema_version"))) {
        // A file of version 1 is older than the table that tells the version.
        return database.tables().contains(QStringLiteral("task")) ? 1 : 0;
    }
    QSqlQuery query(database);
    return query.exec(QStringLiteral("SELECT version FROM schema_version")) && query.next()
               ? query.value(0).toInt()
               : -1;
}

} // namespace

int TaskSchema::version()
{
    return int(migrations().size());
}

QStringList TaskSchema::migration(int from)
{
    return migrations().value(from);
}

QString TaskSchema::migrate(QSqlDatabase &database)
{
    const int present = presentVersion(database);
    if (present < 0 || present > version())
        return QCoreApplication::translate("TaskSchema", "The data base is of a newer version.");
    if (present == version())
        return {};
    QStringList statements{
        QStringLiteral("CREATE TABLE IF NOT EXISTS schema_version (version INTEGER NOT NULL)")};
    for (int from = present; from < version(); ++from)
        statements += migration(from);
    statements << QStringLiteral("DELETE FROM schema_version")
               << QStringLiteral("INSERT INTO schema_version VALUES (%1)").arg(version());
    for (const QString &statement : std::as_const(statements)) {
        QSqlQuery query(database);
        if (!query.exec(statement))
            return query.lastError().text();
    }
    return {};
}
