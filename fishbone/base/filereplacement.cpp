// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/filereplacement.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
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

/** The number of the group of an open file, as QFileInfo has it. */
uint groupOf(const QFileDevice &file)
{
#ifdef Q_OS_UNIX
    struct stat status = {};
    if (fstat(file.handle(), &status) == 0)
        return status.st_gid;
#endif
    return uint(-2);
}

constexpr QFile::Permissions groupRights(0x70);
constexpr QFile::Permissions othersRights(0x07);

/** What others than its owner may do with a file, at most. */
class Rights
{
public:
    /** The rights that @p origin gives, or all when that is no file. */
    explicit Rights(const QString &origin)
        : m_origin(origin)
        , m_isLimited(m_origin.isFile())
    {
    }

    /** What is left of @p permissions for a file of @p group. */
    QFile::Permissions limited(QFile::Permissions permissions, uint group) const
    {
        if (!m_isLimited)
            return permissions;
        const QFile::Permissions others = m_origin.permissions() & othersRights;
        const QFile::Permissions sameGroup = m_origin.permissions() & groupRights;
        const auto otherGroup = QFile::Permissions(int(others) << 4);
        const QFile::Permissions shared =
            others | (group == m_origin.groupId() ? sameGroup : otherGroup);
        return permissions & (~(groupRights | othersRights) | shared);
    }
    /** Takes from the file what it gives too much; false when that cannot be done. */
    bool limit(QFileDevice &file) const
    {
        const QFile::Permissions now = file.permissions();
        const QFile::Permissions kept = limited(now, groupOf(file));
        return kept == now || file.setPermissions(kept);
    }

private:
    QFileInfo m_origin;
    bool m_isLimited;
};

/**
 * Writes @p content into a file that may be there already. What makes the file longer goes in
 * first, so that a full disk is noticed while the old content is whole; after that no more room is
 * needed.
 */
bool overwrite(QFile &file, const QByteArray &content, const Rights &rights)
{
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    rights.limit(file); // nobody but its owner could; what anybody may write is for anybody to read
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
QString replaceInPlace(const QString &fileName, const QByteArray &content, const Rights &rights)
{
    QFile file(fileName);
    const bool isNew = !file.exists();
    if (overwrite(file, content, rights))
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

/** What @p file may give when it takes the place of @p fileName, whose group it gets if it can. */
QFile::Permissions permissionsLike(const QString &fileName, QFileDevice &file, const Rights &rights)
{
    const QFileInfo replaced(fileName);
    const uint group = replaced.groupId();
    const bool hasGroup = fchown(file.handle(), uid_t(-1), gid_t(group)) == 0;
    const QFile::Permissions kept = rights.limited(replaced.permissions(), group);
    return hasGroup ? kept : kept & ~groupRights;
}

/**
 * As replaceFile() for a file that is there. QSaveFile is not used for it: when Qt 5 cannot give
 * its temporary file a name, since that would be too long or the folder cannot grow, it removes the
 * file that was to be replaced.
 */
QString replaceExisting(const QString &fileName, const QByteArray &content, const Rights &rights)
{
    QTemporaryFile file(fileName + QLatin1String(".XXXXXX"));
    // Asking for the name gives it one.
    if (!file.open() || file.fileName().isEmpty())
        return replaceInPlace(fileName, content, rights);
    const QByteArray from = QFile::encodeName(file.fileName());
    const QByteArray to = QFile::encodeName(fileName);
    if (!write(file, content) || !file.setPermissions(permissionsLike(fileName, file, rights)))
        return file.errorString();
    fsync(file.handle()); // some file systems cannot, and are written nevertheless
    // In a folder where everybody keeps what is his, as that for temporary files, a file that
    // others may write cannot be replaced.
    if (std::rename(from.constData(), to.constData()) != 0)
        return replaceInPlace(fileName, content, rights);
    file.setAutoRemove(false);
    return QString();
}

#endif

} // namespace

QString replaceFile(const QString &fileName, const QByteArray &content, const QString &origin)
{
    if (fileName.contains(QChar(0)))
        return qt_error_string(EINVAL); // the system would read the name up to there
    const QFileInfo target(fileName);
    if (target.exists() && !target.isFile()) {
        QFile device(fileName); // replacing a device or a pipe would remove it
        const bool isWritten = device.open(QIODevice::WriteOnly) && write(device, content);
        return isWritten ? QString() : device.errorString();
    }
    const Rights rights(origin);
    if (target.exists() && !target.isWritable())
        return replaceInPlace(fileName, content, rights); // which says why that cannot be
#ifdef Q_OS_UNIX
    const QString finalName = resolved(target);
    if (target.exists())
        return replaceExisting(finalName, content, rights);
#else
    const QString finalName = fileName;
#endif
    QSaveFile file(finalName);
    // The folder may not be writable, or the name too long to be lengthened.
    if (!file.open(QIODevice::WriteOnly))
        return replaceInPlace(finalName, content, rights);
    return rights.limit(file) && write(file, content) && file.commit() ? QString()
                                                                       : file.errorString();
}
