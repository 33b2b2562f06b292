// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <waitingjournal.h>

#include <taskfields.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLockFile>
#include <QSaveFile>
#include <QUrl>
#include <QUuid>

#include <algorithm>

namespace {

constexpr int formatVersion = 1;

/** Numbers of 64 bits, which are more than a number of JSON holds. */
QJsonValue fromNumber(qint64 number)
{
    return QString::number(number);
}

qint64 toNumber(const QJsonValue &value)
{
    return value.toString().toLongLong();
}

QJsonObject fromTask(const Task &task)
{
    return {{QStringLiteral("uuid"), task.uuid},
            {QStringLiteral("parent"), task.parent},
            {QStringLiteral("position"), fromNumber(task.position)},
            {QStringLiteral("fields"), task.fields},
            {QStringLiteral("version"), fromNumber(task.version)},
            {QStringLiteral("author"), task.author}};
}

Task toTask(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    Task task;
    task.uuid = object.value(QStringLiteral("uuid")).toString();
    task.parent = object.value(QStringLiteral("parent")).toString();
    task.position = toNumber(object.value(QStringLiteral("position")));
    task.fields = TaskFields::normalized(object.value(QStringLiteral("fields")).toObject());
    task.version = toNumber(object.value(QStringLiteral("version")));
    task.author = object.value(QStringLiteral("author")).toString();
    return task;
}

/** In the order of their uuids, so that the same tasks are the same bytes. */
QJsonArray fromTasks(const TaskMap &tasks)
{
    QStringList uuids = tasks.keys();
    uuids.sort();
    QJsonArray array;
    for (const QString &uuid : std::as_const(uuids))
        array.append(fromTask(tasks.value(uuid)));
    return array;
}

TaskMap toTasks(const QJsonValue &value)
{
    TaskMap tasks;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &each : array) {
        const Task task = toTask(each);
        tasks.insert(task.uuid, task);
    }
    return tasks;
}

QJsonObject fromBatch(const TaskBatch &batch)
{
    QJsonArray written;
    for (const Task &task : batch.written)
        written.append(fromTask(task));
    return {{QStringLiteral("id"), batch.id},
            {QStringLiteral("written"), written},
            {QStringLiteral("removed"), QJsonArray::fromStringList(batch.removed)}};
}

TaskBatch toBatch(const QJsonObject &object)
{
    TaskBatch batch;
    batch.id = object.value(QStringLiteral("id")).toString();
    const QJsonArray written = object.value(QStringLiteral("written")).toArray();
    for (const QJsonValue &task : written)
        batch.written.append(toTask(task));
    const QJsonArray removed = object.value(QStringLiteral("removed")).toArray();
    for (const QJsonValue &uuid : removed)
        batch.removed.append(uuid.toString());
    return batch;
}

QJsonObject fromConflict(const Conflict &conflict)
{
    return {{QStringLiteral("kind"), int(conflict.kind)},
            {QStringLiteral("key"), conflict.key},
            {QStringLiteral("mine"), fromTask(conflict.mine)},
            {QStringLiteral("theirs"), fromTask(conflict.theirs)}};
}

Conflict toConflict(const QJsonObject &object)
{
    Conflict conflict;
    const int kind = object.value(QStringLiteral("kind")).toInt();
    conflict.kind = Conflict::Kind(qBound(int(Conflict::Value), kind, int(Conflict::IDeleted)));
    conflict.key = object.value(QStringLiteral("key")).toString();
    conflict.mine = toTask(object.value(QStringLiteral("mine")));
    conflict.theirs = toTask(object.value(QStringLiteral("theirs")));
    return conflict;
}

QByteArray toBytes(const WaitingJournal::Entry &entry)
{
    QJsonArray unanswered;
    for (const TaskBatch &batch : entry.unanswered)
        unanswered.append(fromBatch(batch));
    QJsonArray conflicts;
    for (const Conflict &conflict : entry.conflicts)
        conflicts.append(fromConflict(conflict));
    const QJsonObject object{{QStringLiteral("format"), formatVersion},
                             {QStringLiteral("revision"), fromNumber(entry.revision)},
                             {QStringLiteral("known"), fromTasks(entry.known)},
                             {QStringLiteral("mine"), fromTasks(entry.mine)},
                             {QStringLiteral("unanswered"), unanswered},
                             {QStringLiteral("conflicts"), conflicts}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/** False for what is no journal, or one of a later version. */
bool fromBytes(const QByteArray &bytes, WaitingJournal::Entry &entry)
{
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    if (object.value(QStringLiteral("format")).toInt() != formatVersion)
        return false;
    entry.revision = toNumber(object.value(QStringLiteral("revision")));
    entry.known = toTasks(object.value(QStringLiteral("known")));
    entry.mine = toTasks(object.value(QStringLiteral("mine")));
    const QJsonArray unanswered = object.value(QStringLiteral("unanswered")).toArray();
    for (const QJsonValue &batch : unanswered)
        entry.unanswered.append(toBatch(batch.toObject()));
    const QJsonArray conflicts = object.value(QStringLiteral("conflicts")).toArray();
    for (const QJsonValue &conflict : conflicts)
        entry.conflicts.append(toConflict(conflict.toObject()));
    return true;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The same for all ways to name a data base; who gets a new password keeps what waits. */
QString prefixOf(const QString &address)
{
    const bool isServer = address.startsWith(QLatin1String("postgresql:"));
    const QString name = isServer ? QUrl(address).toString(QUrl::RemovePassword)
                                  : QFileInfo(address).absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1);
    return QString::fromLatin1(hash.toHex()) + QLatin1Char('-');
}

} // namespace

/** A journal, and the right to it. */
struct WaitingJournal::File
{
    explicit File(const QString &file)
        : path(file)
        , lock(file + QStringLiteral(".lock"))
    {
        // A host may run for days; one that has crashed is known by its process.
        lock.setStaleLockTime(0);
    }

    const QString path;
    QLockFile lock;
};

WaitingJournal::WaitingJournal(const QString &folder, const QString &address)
    : m_folder(folder)
    , m_prefix(prefixOf(address))
{
}

WaitingJournal::~WaitingJournal() = default;

/** The file at @p path once it is nobody else's; null when it is. */
std::unique_ptr<WaitingJournal::File> WaitingJournal::open(const QString &path) const
{
    auto file = std::make_unique<File>(path);
    return file->lock.tryLock(0) ? std::move(file) : nullptr;
}

QList<WaitingJournal::Entry> WaitingJournal::left()
{
    QList<Entry> entries;
    const QDir folder(m_folder);
    const QStringList names =
        folder.entryList({m_prefix + QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        std::unique_ptr<File> file = open(folder.filePath(name));
        Entry entry;
        if (file && fromBytes(contentOf(file->path), entry)) {
            entries.append(entry);
            m_left.push_back(std::move(file));
        }
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &one, const Entry &other) {
        return one.revision > other.revision;
    });
    return entries;
}

void WaitingJournal::removeLeft()
{
    for (const std::unique_ptr<File> &file : m_left)
        QFile::remove(file->path);
    m_left.clear();
}

bool WaitingJournal::write(const Entry &entry)
{
    const QByteArray bytes = toBytes(entry);
    if (m_own && bytes == m_written)
        return true;
    if (!m_own) {
        const QString name = m_prefix + QUuid::createUuid().toString(QUuid::Id128);
        QDir().mkpath(m_folder);
        m_own = open(QDir(m_folder).filePath(name + QStringLiteral(".json")));
        if (!m_own)
            return false;
    }
    QSaveFile file(m_own->path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    m_written = isWritten ? bytes : QByteArray();
    return isWritten;
}

void WaitingJournal::clear()
{
    if (m_own)
        QFile::remove(m_own->path);
    m_own.reset();
    m_written.clear();
}
