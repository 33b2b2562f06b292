// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fishbone/base/filereplacement.h>
#include <tests/program/testprogram.h>
#include <tests/support/filecontent.h>

namespace {
using TestSupport::contentOf;

int modeOf(const QString &fileName)
{
    struct stat status = {};
    return stat(QFile::encodeName(fileName).constData(), &status) == 0 ? int(status.st_mode) & 0777
                                                                       : -1;
}

/** No file of this process can grow beyond a size while this lives, as on a full disk. */
class FullDisk
{
    Q_DISABLE_COPY(FullDisk)

public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limited = m_before;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

/**
 * Keeps this process from making files in a folder while it lives, but not from writing a file
 * that is in there. The superuser, whom nothing keeps, becomes nobody meanwhile.
 */
class LockedFolder
{
    Q_DISABLE_COPY(LockedFolder)

public:
    LockedFolder(const QString &folder, const QString &file)
        : m_folder(folder)
    {
        constexpr uid_t nobody = 65534;
        QFile::setPermissions(file, QFile::Permissions(0x6666));
        QFile::setPermissions(m_folder, QFile::Permissions(0x5555));
        m_isLocked = m_user != 0 || seteuid(nobody) == 0;
    }
    ~LockedFolder()
    {
        if (seteuid(m_user) == 0)
            QFile::setPermissions(m_folder, QFile::Permissions(0x7777));
    }

    bool isLocked() const { return m_isLocked; }

private:
    QString m_folder;
    uid_t m_user = geteuid();
    bool m_isLocked = false;
};

} // namespace

class TestFileReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(m_folder.isValid()); }
    void shouldMakeANewFile();
    void shouldMakeNoFileOnAFullDisk();
    void shouldReplaceTheWholeContent();
    void shouldKeepTheOldContentOnAFullDisk_data();
    void shouldKeepTheOldContentOnAFullDisk();
    void shouldKeepTheOldContentOnAFullDiskInALockedFolder_data();
    void shouldKeepTheOldContentOnAFullDiskInALockedFolder();
    void shouldReplaceTheWholeContentInALockedFolder();
    void shouldReplaceTheContentWhereEverybodyKeepsWhatIsHis();
    void shouldWriteAFileWithTheLongestName();
    void shouldGiveNoRightsThatTheOriginDoesNotGive_data();
    void shouldGiveNoRightsThatTheOriginDoesNotGive();
    void shouldKeepTheRightsOfAFileThatIsReplaced_data();
    void shouldKeepTheRightsOfAFileThatIsReplaced();
    void shouldRefuseANameWithANullCharacter();
    void shouldFollowALink();
    void shouldFollowALinkToAFileThatIsNotThereYet();
    void shouldSayWhyAFolderCannotBeWritten();
    void shouldWriteADeviceInPlace();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

void TestFileReplacement::shouldMakeANewFile()
{
    QCOMPARE(replaceFile(path("new"), "content"), QString());
    QCOMPARE(contentOf(path("new")), QByteArray("content"));
}

void TestFileReplacement::shouldMakeNoFileOnAFullDisk()
{
    QString reason;
    {
        const FullDisk disk(1000);
        reason = replaceFile(path("not made"), QByteArray(500000, 'x'));
    }
    QVERIFY(!reason.isEmpty());
    QVERIFY(QDir(m_folder.path()).entryList({QStringLiteral("not made*")}).isEmpty());
}

void TestFileReplacement::shouldReplaceTheWholeContent()
{
    QCOMPARE(replaceFile(path("file"), "a longer content"), QString());
    QCOMPARE(replaceFile(path("file"), "short"), QString());
    QCOMPARE(contentOf(path("file")), QByteArray("short"));
}

void TestFileReplacement::shouldKeepTheOldContentOnAFullDisk_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("less than a buffer") << 5000;
    QTest::newRow("more than a buffer") << 500000;
}

void TestFileReplacement::shouldKeepTheOldContentOnAFullDisk()
{
    QFETCH(int, size);
    QCOMPARE(replaceFile(path("full"), "old"), QString());
    QString reason;
    {
        const FullDisk disk(1000);
        reason = replaceFile(path("full"), QByteArray(size, 'x'));
    }
    QVERIFY(!reason.isEmpty());
    QCOMPARE(contentOf(path("full")), QByteArray("old"));
}

void TestFileReplacement::shouldKeepTheOldContentOnAFullDiskInALockedFolder_data()
{
    shouldKeepTheOldContentOnAFullDisk_data();
}

void TestFileReplacement::shouldKeepTheOldContentOnAFullDiskInALockedFolder()
{
    QFETCH(int, size);
    QCOMPARE(replaceFile(path("full"), "old"), QString());
    QString reason;
    {
        const LockedFolder locked(m_folder.path(), path("full"));
        if (!locked.isLocked())
            QSKIP("Folders cannot be locked here.");
        const FullDisk disk(1000);
        reason = replaceFile(path("full"), QByteArray(size, 'x'));
    }
    QVERIFY(!reason.isEmpty());
    QCOMPARE(contentOf(path("full")), QByteArray("old"));
}

void TestFileReplacement::shouldReplaceTheWholeContentInALockedFolder()
{
    QCOMPARE(replaceFile(path("locked"), "some content"), QString());
    const LockedFolder locked(m_folder.path(), path("locked"));
    if (!locked.isLocked())
        QSKIP("Folders cannot be locked here.");
    QCOMPARE(replaceFile(path("locked"), "a longer content"), QString());
    QCOMPARE(contentOf(path("locked")), QByteArray("a longer content"));
    QCOMPARE(replaceFile(path("locked"), "short"), QString());
    QCOMPARE(contentOf(path("locked")), QByteArray("short"));
    QCOMPARE(modeOf(path("locked")), 0666);
    QCOMPARE(replaceFile(path("locked"), QByteArray()), QString());
    QCOMPARE(contentOf(path("locked")), QByteArray());
    QVERIFY(!replaceFile(path("not there"), "content").isEmpty());
    QVERIFY(!QFileInfo::exists(path("not there")));
}

void TestFileReplacement::shouldReplaceTheContentWhereEverybodyKeepsWhatIsHis()
{
    if (geteuid() != 0)
        QSKIP("Only the superuser can have a file that belongs to another one.");
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("shared"));
    QCOMPARE(replaceFile(file, "a longer content"), QString());
    QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x6666)));
    QCOMPARE(chmod(QFile::encodeName(folder.path()).constData(), 01777), 0); // as /tmp is

    constexpr uid_t nobody = 65534;
    QCOMPARE(seteuid(nobody), 0);
    const QString failure = replaceFile(file, "short");
    QCOMPARE(seteuid(0), 0);

    QCOMPARE(failure, QString());
    QCOMPARE(contentOf(file), QByteArray("short"));
    QCOMPARE(modeOf(file), 0666);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("shared")));
}

void TestFileReplacement::shouldWriteAFileWithTheLongestName()
{
    const QString longest = m_folder.filePath(QString(255, QLatin1Char('n')));
    QCOMPARE(replaceFile(longest, "a first content"), QString());
    QCOMPARE(contentOf(longest), QByteArray("a first content"));
    QCOMPARE(replaceFile(longest, "a second"), QString());
    QCOMPARE(contentOf(longest), QByteArray("a second"));
    {
        const FullDisk disk(100);
        QVERIFY(!replaceFile(longest, QByteArray(5000, 'x')).isEmpty());
    }
    QCOMPARE(contentOf(longest), QByteArray("a second"));
    QVERIFY(!replaceFile(m_folder.filePath(QString(256, QLatin1Char('n'))), "content").isEmpty());
}

void TestFileReplacement::shouldGiveNoRightsThatTheOriginDoesNotGive_data()
{
    QTest::addColumn<int>("origin");
    QTest::addColumn<int>("before"); // 0: the file is new
    QTest::addColumn<int>("after");
    QTest::newRow("new, private") << 0600 << 0 << 0600;
    QTest::newRow("new, for the group") << 0640 << 0 << 0640;
    QTest::newRow("new, for all") << 0666 << 0 << 0644;
    QTest::newRow("private over one for all") << 0600 << 0644 << 0600;
    QTest::newRow("for all over a private one") << 0644 << 0600 << 0600;
    QTest::newRow("for the group over one for all") << 0640 << 0666 << 0640;
    QTest::newRow("no origin") << 0 << 0604 << 0604;
}

void TestFileReplacement::shouldGiveNoRightsThatTheOriginDoesNotGive()
{
    QFETCH(int, origin);
    QFETCH(int, before);
    QFETCH(int, after);
    const mode_t mask = umask(022);
    const QTemporaryDir folder;
    const QString from = folder.filePath(QStringLiteral("from"));
    const QString to = folder.filePath(QStringLiteral("to"));
    if (origin != 0) {
        QCOMPARE(replaceFile(from, "content"), QString());
        QCOMPARE(chmod(QFile::encodeName(from).constData(), mode_t(origin)), 0);
    }
    if (before != 0) {
        QCOMPARE(replaceFile(to, "old"), QString());
        QCOMPARE(chmod(QFile::encodeName(to).constData(), mode_t(before)), 0);
    }

    QCOMPARE(replaceFile(to, "content", from), QString());

    umask(mask);
    QCOMPARE(modeOf(to), after);
    QCOMPARE(contentOf(to), QByteArray("content"));
}

void TestFileReplacement::shouldKeepTheRightsOfAFileThatIsReplaced_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0644, 0666, 0400 | 0200 | 0004})
        QTest::addRow("%o", mode) << mode;
}

void TestFileReplacement::shouldKeepTheRightsOfAFileThatIsReplaced()
{
    QFETCH(int, mode);
    QCOMPARE(replaceFile(path("kept"), "old"), QString());
    QCOMPARE(chmod(QFile::encodeName(path("kept")).constData(), mode_t(mode)), 0);
    QCOMPARE(replaceFile(path("kept"), "new"), QString());
    QCOMPARE(modeOf(path("kept")), mode);
}

void TestFileReplacement::shouldRefuseANameWithANullCharacter()
{
    QCOMPARE(replaceFile(path("before"), "old"), QString());
    const QString name = path("before") + QChar(0) + QStringLiteral("after");
    QVERIFY(!replaceFile(name, "new").isEmpty());
    QVERIFY(QFile::remove(path("before")));
    QVERIFY(!replaceFile(name, "new").isEmpty());
    QVERIFY(!QFileInfo::exists(path("before")));
}

void TestFileReplacement::shouldFollowALink()
{
    QCOMPARE(replaceFile(path("target"), "old"), QString());
    QVERIFY(QFile::link(path("target"), path("link")));
    QCOMPARE(replaceFile(path("link"), "new"), QString());
    QCOMPARE(contentOf(path("target")), QByteArray("new"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
}

void TestFileReplacement::shouldFollowALinkToAFileThatIsNotThereYet()
{
    QVERIFY(QFile::link(path("not yet"), path("early link")));
    QCOMPARE(replaceFile(path("early link"), "new"), QString());
    QCOMPARE(contentOf(path("not yet")), QByteArray("new"));
    QVERIFY(QFileInfo(path("early link")).isSymLink());
}

void TestFileReplacement::shouldSayWhyAFolderCannotBeWritten()
{
    QVERIFY(!replaceFile(path("no such folder/file"), "content").isEmpty());
    QVERIFY(!replaceFile(m_folder.path(), "content").isEmpty());
}

void TestFileReplacement::shouldWriteADeviceInPlace()
{
    QCOMPARE(replaceFile(QStringLiteral("/dev/null"), "content"), QString());
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
    QVERIFY(!replaceFile(QStringLiteral("/dev/full"), "content").isEmpty());
}

FISHBONE_GUILESS_TEST(TestFileReplacement)
#include "tst_filereplacement.moc"
