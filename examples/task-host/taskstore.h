// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <task.h>

#include <QObject>
#include <QSqlDatabase>
#include <QVariantList>

class QSqlQuery;

/** What goes into the data base together, or not at all. */
struct TaskBatch
{
    QString id;          ///< told by the data base later when the answer to it was lost
    QList<Task> written; ///< new and changed ones
    QStringList removed; ///< uuids
    /** Whether there is nothing to do. */
    bool isEmpty() const { return written.isEmpty() && removed.isEmpty(); }
};

/** What has happened since a revision. */
struct TaskNews
{
    qint64 revision = 0; ///< the newest
    QList<Task> written; ///< as they are now
    QStringList removed; ///< uuids
    QStringList batches; ///< the ids of what went in since then
};

/**
 * The tasks in a data base: a file of SQLite, or PostgreSQL for a team.
 *
 * All changes of a data base are numbered without a gap: each batch makes a revision. A batch is
 * one transaction, and transactions that write go one after the other, since each takes a lock
 * first. It is carried out only when the revision is still the one that the batch was made for;
 * whoever was too late reads the news, merges and tries again. So what is in the data base is
 * always the tree that its last writer saw. That a task would hang on nothing or on itself is
 * refused once more within the transaction, for the sake of writers that are no such host.
 *
 * No call shows a dialog. After a failure the connection is closed: open() tries again.
 */
class TaskStore : public QObject
{
    Q_OBJECT

public:
    /** How a batch went. */
    enum class Outcome {
        Done,
        Outdated,  ///< others have written since; nothing was done
        Refused,   ///< it would leave no tree; nothing was done
        Failed,    ///< the connection is gone, or the data base cannot do it; nothing was done
        Unanswered ///< the connection broke at the end: it was done, or it was not
    };

    /**
     * A store at @p address, the path of a file or postgresql://user@host:port/name, in which
     * @p author writes. A folder with the server's socket goes into "?host=".
     */
    TaskStore(const QString &address, const QString &author, QObject *parent = nullptr);
    ~TaskStore() override;

    /** Connects, and makes or migrates the tables; true when it is open. */
    bool open();
    /** Whether the connection stands, as far as is known. */
    bool isOpen() const { return m_isOpen; }
    /** Why the last call failed, in the words of the data base. */
    QString errorText() const { return m_errorText; }
    /** Where the data base is. */
    QString address() const { return m_address; }
    /** Who writes here. */
    QString author() const { return m_author; }

    /** The newest revision, -1 on a failure. One look into an index. */
    qint64 latestRevision();
    /** What has happened since @p revision, all of it as of one moment; false on a failure. */
    bool readNews(qint64 revision, TaskNews &news);
    /** Carries out @p batch, made for @p expected. Done makes @p expected + 1. */
    Outcome commit(const TaskBatch &batch, qint64 expected);

Q_SIGNALS:
    /** The server says that somebody has written. SQLite says nothing: ask latestRevision(). */
    void newsAvailable();

private:
    class Transaction;

    bool isServer() const;
    QSqlDatabase database() const;
    bool connectDatabase();
    bool prepareConnection();
    void close();
    bool run(const QString &sql, const QVariantList &values = {});
    bool run(QSqlQuery &query, const QString &sql, const QVariantList &values = {});
    bool fail(const QString &text);
    bool readRevision(qint64 &revision);
    bool readWritten(qint64 revision, TaskNews &news);
    bool readTexts(const QString &sql, qint64 revision, QStringList &texts);
    bool write(const TaskBatch &batch, qint64 revision);
    bool note(qint64 revision, const QString &uuid, const QString &what);
    bool hangsOnHead(const QString &uuid, bool &hangs);

    const QString m_address;
    const QString m_author;
    const QString m_connection; // the name of the connection within this process
    bool m_isOpen = false;
    QString m_errorText;
};
