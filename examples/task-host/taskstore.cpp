// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskstore.h>

#include <taskfields.h>
#include <taskschema.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUrlQuery>
#include <QUuid>

namespace {

const QString &channel()
{
    static const QString name = QStringLiteral("fishbone_tasks");
    return name;
}

QString textOf(const QJsonObject &fields)
{
    return QString::fromUtf8(QJsonDocument(fields).toJson(QJsonDocument::Compact));
}

QJsonObject fieldsOf(const QString &text)
{
    return TaskFields::normalized(QJsonDocument::fromJson(text.toUtf8()).object());
}

} // namespace

/** Rolls back what was not committed. */
class TaskStore::Transaction
{
    Q_DISABLE_COPY(Transaction)

public:
    enum Kind { Reading, Writing };

    Transaction(TaskStore &store, Kind kind)
        : m_store(store)
        , m_isOpen(begin(kind))
    {
    }
    ~Transaction()
    {
        if (m_isOpen && m_store.database().isOpen())
            QSqlQuery(m_store.database()).exec(QStringLiteral("ROLLBACK")); // an error stays told
    }

    bool isOpen() const { return m_isOpen; }
    bool commit()
    {
        if (!m_isOpen || !m_store.run(QStringLiteral("COMMIT")))
            return false;
        m_isOpen = false;
        return true;
    }

private:
    /** What reads sees one moment, whatever is written meanwhile; what writes does so alone. */
    bool begin(Kind kind)
    {
        if (!m_store.isServer())
            return m_store.run(kind == Reading ? QStringLiteral("BEGIN")
                                               : QStringLiteral("BEGIN IMMEDIATE"));
        if (kind == Reading)
            return m_store.run(QStringLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"));
        return m_store.run(QStringLiteral("BEGIN")) &&
               m_store.run(QStringLiteral("SELECT pg_advisory_xact_lock(71893)"));
    }

    TaskStore &m_store;
    bool m_isOpen;
};

TaskStore::TaskStore(const QString &address, const QString &author, QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_author(author.isEmpty() ? tr("Somebody") : author)
    , m_connection(QUuid::createUuid().toString())
{
}

TaskStore::~TaskStore()
{
    close();
}

bool TaskStore::isServer() const
{
    return m_address.startsWith(QLatin1String("postgresql:"));
}

QSqlDatabase TaskStore::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

bool TaskStore::fail(const QString &text)
{
    m_errorText = text;
    return false;
}

bool TaskStore::run(QSqlQuery &query, const QString &sql, const QVariantList &values)
{
    if (!database().isOpen())
        return fail(tr("There is no connection."));
    query.setForwardOnly(true);
    bool isDone = values.isEmpty() ? query.exec(sql) : query.prepare(sql);
    if (!values.isEmpty() && isDone) {
        for (const QVariant &value : values)
            query.addBindValue(value);
        isDone = query.exec();
    }
    return isDone || fail(query.lastError().text());
}

bool TaskStore::run(const QString &sql, const QVariantList &values)
{
    QSqlQuery query(database());
    return run(query, sql, values);
}

bool TaskStore::connectDatabase()
{
    QSqlDatabase added = QSqlDatabase::addDatabase(
        isServer() ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE"), m_connection);
    if (isServer()) {
        const QUrl url(m_address);
        const QString socket = QUrlQuery(url).queryItemValue(QStringLiteral("host"));
        added.setHostName(socket.isEmpty() ? url.host() : socket);
        added.setPort(url.port(5432));
        added.setUserName(url.userName());
        added.setPassword(url.password());
        added.setDatabaseName(url.path().mid(1));
        added.setConnectOptions(QStringLiteral("connect_timeout=2"));
    } else {
        added.setDatabaseName(m_address);
        added.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    }
    return added.open() || fail(added.lastError().text());
}

/** What each new connection needs. */
bool TaskStore::prepareConnection()
{
    if (!isServer()) {
        // Who reads and who writes do not wait for each other, and what is committed is on the
        // disk.
        return run(QStringLiteral("PRAGMA journal_mode = WAL")) &&
               run(QStringLiteral("PRAGMA synchronous = FULL"));
    }
    QSqlDriver *const driver = database().driver();
    connect(driver,
            qOverload<const QString &, QSqlDriver::NotificationSource, const QVariant &>(
                &QSqlDriver::notification),
            this, &TaskStore::newsAvailable);
    return driver->subscribeToNotification(channel()) || fail(driver->lastError().text());
}

bool TaskStore::open()
{
    if (m_isOpen)
        return true;
    if (connectDatabase() && prepareConnection()) {
        Transaction transaction(*this, Transaction::Writing);
        if (transaction.isOpen()) {
            QSqlDatabase migrated = database();
            const QString error = TaskSchema::migrate(migrated);
            m_isOpen = error.isEmpty() ? transaction.commit() : fail(error);
        }
    }
    if (!m_isOpen)
        close();
    return m_isOpen;
}

void TaskStore::close()
{
    m_isOpen = false;
    {
        QSqlDatabase closing = database();
        if (!closing.isValid())
            return;
        closing.driver()->disconnect(this);
        closing.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
}

bool TaskStore::readRevision(qint64 &revision)
{
    QSqlQuery query(database());
    if (!run(query, QStringLiteral("SELECT COALESCE(MAX(revision), 0) FROM edit")) || !query.next())
        return false;
    revision = query.value(0).toLongLong();
    return true;
}

qint64 TaskStore::latestRevision()
{
    qint64 revision = -1;
    if (!m_isOpen || readRevision(revision))
        return revision;
    close();
    return -1;
}

bool TaskStore::readNews(qint64 revision, TaskNews &news)
{
    bool isRead = false;
    if (m_isOpen) {
        Transaction transaction(*this, Transaction::Reading);
        isRead = transaction.isOpen() && readRevision(news.revision) &&
                 readWritten(revision, news) &&
                 readTexts(QStringLiteral("SELECT DISTINCT uuid FROM change WHERE revision > ? AND "
                                          "uuid NOT IN (SELECT uuid FROM task)"),
                           revision, news.removed) &&
                 readTexts(QStringLiteral("SELECT id FROM edit WHERE revision > ?"), revision,
                           news.batches) &&
                 transaction.commit();
    }
    if (!isRead)
        close();
    return isRead;
}

bool TaskStore::readWritten(qint64 revision, TaskNews &news)
{
    QSqlQuery query(database());
    const QString sql =
        QStringLiteral("SELECT uuid, parent, position, fields, version, author FROM task "
                       "LEFT JOIN edit ON edit.revision = task.version WHERE version > ?");
    if (!run(query, sql, {revision}))
        return false;
    while (query.next()) {
        Task task;
        task.uuid = query.value(0).toString();
        task.parent = query.value(1).toString();
        task.position = query.value(2).toLongLong();
        task.fields = fieldsOf(query.value(3).toString());
        task.version = query.value(4).toLongLong();
        task.author = query.value(5).toString();
        news.written.append(task);
    }
    return true;
}

bool TaskStore::readTexts(const QString &sql, qint64 revision, QStringList &texts)
{
    QSqlQuery query(database());
    if (!run(query, sql, {revision}))
        return false;
    while (query.next())
        texts.append(query.value(0).toString());
    return true;
}

TaskStore::Outcome TaskStore::commit(const TaskBatch &batch, qint64 expected)
{
    Outcome outcome = Outcome::Failed;
    if (m_isOpen) {
        Transaction transaction(*this, Transaction::Writing);
        qint64 latest = -1;
        bool isDone = transaction.isOpen() && readRevision(latest);
        if (isDone && latest != expected)
            return Outcome::Outdated;
        bool isTree = true;
        isDone = isDone && write(batch, expected + 1);
        for (int i = 0; i < batch.written.size() && isDone && isTree; ++i)
            isDone = hangsOnHead(batch.written.at(i).uuid, isTree);
        if (isDone && !isTree)
            return Outcome::Refused;
        if (isDone && isServer())
            isDone = run(QStringLiteral("NOTIFY ") + channel());
        if (isDone)
            outcome = transaction.commit() ? Outcome::Done : Outcome::Unanswered;
    }
    if (outcome != Outcome::Done)
        close();
    return outcome;
}

bool TaskStore::write(const TaskBatch &batch, qint64 revision)
{
    const QString upsert = QStringLiteral(
        "INSERT INTO task (uuid, parent, position, fields, version) VALUES (?, ?, ?, ?, ?) "
        "ON CONFLICT (uuid) DO UPDATE SET parent = excluded.parent, position = excluded.position,"
        " fields = excluded.fields, version = excluded.version");
    if (!run(QStringLiteral("INSERT INTO edit (revision, id, author, made_at) VALUES (?, ?, ?, ?)"),
             {revision, batch.id, m_author, QDateTime::currentMSecsSinceEpoch()}))
        return false;
    for (const QString &uuid : batch.removed) {
        if (!run(QStringLiteral("DELETE FROM task WHERE uuid = ?"), {uuid}) ||
            !note(revision, uuid, QStringLiteral("removed")))
            return false;
    }
    for (const Task &task : batch.written) {
        // A text that was never assigned would be a null.
        const QString parent = task.parent.isEmpty() ? QStringLiteral("") : task.parent;
        if (!run(upsert, {task.uuid, parent, task.position, textOf(task.fields), revision}) ||
            !note(revision, task.uuid, QStringLiteral("written")))
            return false;
    }
    return true;
}

bool TaskStore::note(qint64 revision, const QString &uuid, const QString &what)
{
    return run(QStringLiteral("INSERT INTO change (revision, uuid, what) VALUES (?, ?, ?)"),
               {revision, uuid, what});
}

/** The way up ends where it meets itself, since UNION takes nothing twice. */
bool TaskStore::hangsOnHead(const QString &uuid, bool &hangs)
{
    QSqlQuery query(database());
    const QString sql = QStringLiteral(
        "WITH RECURSIVE up (uuid, parent) AS (SELECT uuid, parent FROM task WHERE uuid = ? UNION "
        "SELECT task.uuid, task.parent FROM task JOIN up ON task.uuid = up.parent) "
        "SELECT COUNT(*) FROM up WHERE parent = ''");
    if (!run(query, sql, {uuid}) || !query.next())
        return false;
    hangs = query.value(0).toInt() == 1;
    return true;
}
