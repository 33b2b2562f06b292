// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/filereplacement.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

/**
 * Hands the whole content on to the system. What stays in the buffer until the file is closed or
 * committed could fail without a report.
 */
bool write(QFileDevice &file, const QByteArray &content)
{
    return file.write(content) == content.size() && file.flush();
}

/**
 * Writes @p content into a file that may be there already. What makes the file longer goes in
 * first, so that a full disk is noticed while the old content is whole; after that no more room is
 * needed.
 */
bool overwrite(QFile &file, const QByteArray &content)
{
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    const qint64 oldSize = file.size();
    const QByteArray end = content.mid(int(std::min(oldSize, qint64(content.size()))));
    if (!file.seek(oldSize) || file.write(end) != end.size()) {
        file.resize(oldSize);
        return false;
    }
    const qint64 beginSize = content.size() - end.size();
    return file.seek(0) && file.write(content.constData(), beginSize) == beginSize &&
           file.resize(content.size());
}

/** As replaceFile() where no second file can be made beside the first. */
QString replaceInPlace(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    const bool isNew = !file.exists();
    if (overwrite(file, content))
        return QString();
    const QString failure = file.errorString();
    if (isNew)
        file.remove();
    return failure;
}

#ifdef Q_OS_UNIX

/** The file that a write of @p target goes to in the end. */
QString resolved(const QFileInfo &target)
{
    const QString existing = target.canonicalFilePath();
    if (!existing.isEmpty())
        return existing;
    return target.isSymLink() ? target.symLinkTarget() : target.absoluteFilePath();
}

/**
 * As replaceFile() for a file that is there. QSaveFile is not used for it: when Qt 5 cannot give
 * its temporary file a name, since that would be too long or the folder cannot grow, it removes the
 * file that was to be replaced.
 */
QString replaceExisting(const QString &fileName, const QByteArray &content)
{
    QTemporaryFile file(fileName + QLatin1String(".XXXXXX"));
    // Asking for the name gives it one.
    if (!file.open() || file.fileName().isEmpty())
        return replaceInPlace(fileName, content);
    const QByteArray from = QFile::encodeName(file.fileName());
    const QByteArray to = QFile::encodeName(fileName);
    if (!write(file, content) || !file.setPermissions(QFile::permissions(fileName)))
        return file.errorString();
    fsync(file.handle()); // some file systems cannot, and are written nevertheless
    // In a folder where everybody keeps what is his, as that for temporary files, a file that
    // others may write cannot be replaced.
    if (std::rename(from.constData(), to.constData()) != 0)
        return replaceInPlace(fileName, content);
    file.setAutoRemove(false);
    return QString();
}

#endif

} // namespace

QString replaceFile(const QString &fileName, const QByteArray &content)
{
    if (fileName.contains(QChar(0)))
        return qt_error_string(EINVAL); // the system would read the name up to there
    const QFileInfo target(fileName);
    if (target.exists() && !target.isFile()) {
        QFile device(fileName); // replacing a device or a pipe would remove it
        const bool isWritten = device.open(QIODevice::WriteOnly) && write(device, content);
        return isWritten ? QString() : device.errorString();
    }
    if (target.exists() && !target.isWritable())
        return replaceInPlace(fileName, content); // which says why that cannot be
#ifdef Q_OS_UNIX
    const QString finalName = resolved(target);
    if (target.exists())
        return replaceExisting(finalName, content);
#else
    const QString finalName = fileName;
#endif
    QSaveFile file(finalName);
    // The folder may not be writable, or the name too long to be lengthened.
    if (!file.open(QIODevice::WriteOnly))
        return replaceInPlace(finalName, content);
    return write(file, content) && file.commit() ? QString() : file.errorString();
}
