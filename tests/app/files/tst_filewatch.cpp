// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/filewatch.h>
#include <tests/program/testprogram.h>

#include <QFile>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/** Files that somebody else may change. */
class TestFileWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldNoticeAnotherContent();
    void shouldNoticeAFileThatIsReplacedOrGone();
    void shouldTakeTheSameContentForNoChange();
    void shouldKnowWhatWasAccepted();
    void shouldWatchNothingWithoutAFile();

private:
    QTemporaryDir m_folder;
};

namespace {

template <typename File>
void writeTo(File &file, const QByteArray &text)
{
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    writeTo(file, text);
}

} // namespace

void TestFileWatch::initTestCase()
{
    qRegisterMetaType<FileWatch::State>("FileWatch::State"); // for spies
}

void TestFileWatch::shouldNoticeAnotherContent()
{
    const QString path = m_folder.filePath(QStringLiteral("a.json"));
    writeFile(path, "one");
    FileWatch watch;
    watch.setFile(path);
    QCOMPARE(watch.look(), FileWatch::State::Same);
    QSignalSpy spy(&watch, &FileWatch::changed);
    writeFile(path, "two");
    QCOMPARE(watch.look(), FileWatch::State::Changed);
    QVERIFY(spy.wait());
    QCOMPARE(spy.at(0).at(0).value<FileWatch::State>(), FileWatch::State::Changed);
}

void TestFileWatch::shouldNoticeAFileThatIsReplacedOrGone()
{
    const QString path = m_folder.filePath(QStringLiteral("b.json"));
    writeFile(path, "one");
    FileWatch watch;
    watch.setFile(path);
    QSignalSpy spy(&watch, &FileWatch::changed);
    QSaveFile other(path);
    writeTo(other, "two");
    QVERIFY(other.commit());
    QVERIFY(spy.wait());
    QVERIFY(QFile::remove(path));
    QVERIFY(spy.wait());
    QCOMPARE(spy.at(1).at(0).value<FileWatch::State>(), FileWatch::State::Missing);
    writeFile(path, "one");
    QVERIFY(spy.wait());
    QCOMPARE(spy.at(2).at(0).value<FileWatch::State>(), FileWatch::State::Same);
}

void TestFileWatch::shouldTakeTheSameContentForNoChange()
{
    const QString path = m_folder.filePath(QStringLiteral("c.json"));
    writeFile(path, "one");
    FileWatch watch;
    watch.setFile(path);
    QSignalSpy spy(&watch, &FileWatch::changed);
    writeFile(path, "one");
    QVERIFY(!spy.wait(500));
    QCOMPARE(watch.look(), FileWatch::State::Same);
}

void TestFileWatch::shouldKnowWhatWasAccepted()
{
    const QString path = m_folder.filePath(QStringLiteral("d.json"));
    writeFile(path, "one");
    FileWatch watch;
    watch.setFile(path);
    writeFile(path, "two");
    watch.accept();
    QCOMPARE(watch.look(), FileWatch::State::Same);
    writeFile(path, "one");
    QCOMPARE(watch.look(), FileWatch::State::Changed);
}

void TestFileWatch::shouldWatchNothingWithoutAFile()
{
    const QString path = m_folder.filePath(QStringLiteral("e.json"));
    writeFile(path, "one");
    FileWatch watch;
    watch.setFile(path);
    watch.setFile(QString());
    QSignalSpy spy(&watch, &FileWatch::changed);
    writeFile(path, "two");
    QVERIFY(!spy.wait(400));
    QCOMPARE(watch.look(), FileWatch::State::Same);
}

FISHBONE_GUILESS_TEST(TestFileWatch)
#include "tst_filewatch.moc"
