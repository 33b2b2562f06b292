// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/recoverystore.h>

#include <app/common/jsonfile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUuid>

namespace {

QString fileKey()
{
    return QStringLiteral("file");
}

QString nameKey()
{
    return QStringLiteral("name");
}

QString withSuffix(const QString &copy, const QString &suffix)
{
    const QFileInfo info(copy);
    return QStringLiteral("%1/%2.%3").arg(info.absolutePath(), info.completeBaseName(), suffix);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Whether the process that keeps the copy at @p copy still runs. */
bool isOwned(const QString &copy)
{
    QLockFile lock(RecoveryStore::lockOf(copy));
    lock.setStaleLockTime(0); // however long it runs
    return !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

LeftCopy readNote(const QFileInfo &copy)
{
    const QJsonObject note = JsonFile::read(RecoveryStore::noteOf(copy.filePath()));
    LeftCopy left;
    left.copy = copy.filePath();
    left.original = note.value(fileKey()).toString();
    left.name = note.value(nameKey()).toString();
    if (left.name.isEmpty())
        left.name = copy.fileName();
    left.saved = copy.lastModified();
    left.size = copy.size();
    return left;
}

bool isSameAsOriginal(const LeftCopy &left)
{
    return QFileInfo(left.original).isFile() && contentOf(left.copy) == contentOf(left.original);
}

} // namespace

namespace RecoveryStore {

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/autosave");
}

QString newCopy(const QString &name)
{
    QDir().mkpath(folder());
    static const QRegularExpression unsafe(QStringLiteral("[^\\w-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString base = QFileInfo(name).completeBaseName().left(40);
    base.replace(unsafe, QStringLiteral("_"));
    const QString unique = QUuid::createUuid().toString(QUuid::Id128);
    return QStringLiteral("%1/%2-%3.json").arg(folder(), base, unique.left(16));
}

QString noteOf(const QString &copy)
{
    return withSuffix(copy, QStringLiteral("info"));
}

QString lockOf(const QString &copy)
{
    return withSuffix(copy, QStringLiteral("lock"));
}

bool writeNote(const QString &copy, const QString &original, const QString &name)
{
    return JsonFile::write(noteOf(copy), {{fileKey(), original}, {nameKey(), name}},
                           JsonFile::Readers::Owner);
}

void remove(const QString &copy)
{
    // The copy first: a note without a copy is nothing that anybody could miss.
    QFile::remove(copy);
    QFile::remove(noteOf(copy));
}

QList<LeftCopy> left()
{
    QList<LeftCopy> found;
    const QFileInfoList copies =
        QDir(folder()).entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Time);
    for (const QFileInfo &copy : copies) {
        if (isOwned(copy.filePath()))
            continue;
        const LeftCopy each = readNote(copy);
        if (isSameAsOriginal(each))
            remove(each.copy);
        else
            found.append(each);
    }
    return found;
}

} // namespace RecoveryStore
