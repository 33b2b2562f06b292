// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/resource.h>

#include <fishbone/model/filereplacement.h>

namespace {

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// No file of this process can grow beyond a size while this lives, as on a full disk.
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

} // namespace

class tst_FileReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(m_folder.isValid()); }
    void shouldMakeANewFile();
    void shouldReplaceTheWholeContent();
    void shouldKeepTheOldContentOnAFullDisk_data();
    void shouldKeepTheOldContentOnAFullDisk();
    void shouldFollowALink();
    void shouldSayWhyAFolderCannotBeWritten();
    void shouldWriteADeviceInPlace();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

void tst_FileReplacement::shouldMakeANewFile()
{
    QCOMPARE(replaceFile(path("new"), "content"), QString());
    QCOMPARE(contentOf(path("new")), QByteArray("content"));
}

void tst_FileReplacement::shouldReplaceTheWholeContent()
{
    QCOMPARE(replaceFile(path("file"), "a longer content"), QString());
    QCOMPARE(replaceFile(path("file"), "short"), QString());
    QCOMPARE(contentOf(path("file")), QByteArray("short"));
}

void tst_FileReplacement::shouldKeepTheOldContentOnAFullDisk_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("less than a buffer") << 5000;
    QTest::newRow("more than a buffer") << 500000;
}

void tst_FileReplacement::shouldKeepTheOldContentOnAFullDisk()
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

void tst_FileReplacement::shouldFollowALink()
{
    QCOMPARE(replaceFile(path("target"), "old"), QString());
    QVERIFY(QFile::link(path("target"), path("link")));
    QCOMPARE(replaceFile(path("link"), "new"), QString());
    QCOMPARE(contentOf(path("target")), QByteArray("new"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
}

void tst_FileReplacement::shouldSayWhyAFolderCannotBeWritten()
{
    QVERIFY(!replaceFile(path("no such folder/file"), "content").isEmpty());
    QVERIFY(!replaceFile(m_folder.path(), "content").isEmpty());
}

void tst_FileReplacement::shouldWriteADeviceInPlace()
{
    QCOMPARE(replaceFile(QStringLiteral("/dev/null"), "content"), QString());
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
    QVERIFY(!replaceFile(QStringLiteral("/dev/full"), "content").isEmpty());
}

QTEST_GUILESS_MAIN(tst_FileReplacement)
#include "tst_filereplacement.moc"
