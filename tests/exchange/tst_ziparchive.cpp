// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/ziparchive.h>

#include <QElapsedTimer>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

const QString name = QStringLiteral("content.json");

QByteArray archiveWith(const QByteArray &content)
{
    return ZipWriter::archive({{name, content}});
}

} // namespace

/** Archives as they come from anywhere. */
class TestZipArchive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveBackWhatWasPutIn();
    void shouldMakeTheSameBytesOfTheSameFiles();
    void shouldRefuseWhatIsNoArchive_data();
    void shouldRefuseWhatIsNoArchive();
    void shouldRefuseTooManyFiles();
    void shouldRefuseTwoFilesOfOneName();
    void shouldRefuseWhatExpandsTooFar();
    void shouldRefuseFilesThatAreTooLarge();
    void shouldRefuseAllThatIsTooLargeTogether();
    void shouldSayThatAFileIsDamaged();
    void shouldFindNoFileOfAnotherName();
    void shouldSurviveAnyChange();
};

void TestZipArchive::shouldGiveBackWhatWasPutIn()
{
    QByteArray everything;
    for (unsigned i = 0; i < 100000; ++i)
        everything.append(char(i * i));
    const QByteArray bytes = ZipWriter::archive(
        {{name, "x"}, {QStringLiteral("a/b"), everything}, {QStringLiteral("e"), {}}});
    QVERIFY(bytes.startsWith("PK"));
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    QVERIFY(archive.isOpen());
    QCOMPARE(archive.names(), QStringList({name, QStringLiteral("a/b"), QStringLiteral("e")}));
    QCOMPARE(*archive.file(name), QByteArray("x"));
    QCOMPARE(*archive.file(QStringLiteral("a/b")), everything);
    QCOMPARE(*archive.file(QStringLiteral("e")), QByteArray());
    QCOMPARE(tree.error(), QString());
}

void TestZipArchive::shouldMakeTheSameBytesOfTheSameFiles()
{
    const QByteArray first = archiveWith("x");
    QTest::qWait(1); // the time would be another one
    QCOMPARE(archiveWith("x"), first);
}

void TestZipArchive::shouldRefuseWhatIsNoArchive_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("a text");
    QTest::newRow("a beginning") << archiveWith("content").left(30);
    QTest::newRow("an end") << archiveWith("content").right(30);
}

void TestZipArchive::shouldRefuseWhatIsNoArchive()
{
    QFETCH(QByteArray, bytes);
    ImportedTree tree;
    const ZipReader archive(bytes, tree);
    QVERIFY(!archive.isOpen());
    QVERIFY2(tree.error().contains(QLatin1String("not a zip archive")), qPrintable(tree.error()));
}

void TestZipArchive::shouldRefuseTooManyFiles()
{
    std::vector<ZipWriter::File> files;
    for (int i = 0; i <= ZipReader::maximalEntries; ++i)
        files.emplace_back(QString::number(i), QByteArray());
    ImportedTree tree;
    const ZipReader archive(ZipWriter::archive(files), tree);
    QVERIFY(!archive.isOpen());
    QCOMPARE(tree.error(), QStringLiteral("the archive has more than 10000 files"));
}

void TestZipArchive::shouldRefuseTwoFilesOfOneName()
{
    QByteArray bytes = ZipWriter::archive({{QStringLiteral("a"), "x"}, {QStringLiteral("b"), "y"}});
    // The name stands in front of the file and in the directory at the end.
    const int directory = int(bytes.lastIndexOf("PK\x01\x02"));
    bytes[int(bytes.indexOf('b', directory))] = 'a';
    ImportedTree tree;
    const ZipReader archive(bytes, tree);
    QVERIFY(!archive.isOpen());
    QVERIFY(!tree.error().isEmpty());
}

void TestZipArchive::shouldRefuseWhatExpandsTooFar()
{
    const QByteArray bytes = archiveWith(QByteArray(20 << 20, 'x'));
    QVERIFY(bytes.size() < 100000); // it is a bomb
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!archive.file(name));
    QCOMPARE(tree.error(),
             QStringLiteral("content.json: it expands to more than 500 times its size"));
    QVERIFY(timer.elapsed() < 5000);
    for (const Format format : {Format::Xmind, Format::Xlsx})
        QVERIFY(!imported(bytes, format).head);
}

void TestZipArchive::shouldRefuseFilesThatAreTooLarge()
{
    QByteArray content; // that does not pack well enough to be a bomb
    QRandomGenerator random(1);
    while (content.size() <= ZipReader::maximalFile)
        content.append(QByteArray(400, char(random.bounded(256))))
            .append(char(random.bounded(256)));
    ImportedTree tree;
    ZipReader archive(archiveWith(content), tree);
    QVERIFY(!archive.file(name));
    QVERIFY2(tree.error().startsWith(QLatin1String("content.json: it ")), qPrintable(tree.error()));
}

void TestZipArchive::shouldRefuseAllThatIsTooLargeTogether()
{
    QByteArray content;
    QRandomGenerator random(1);
    while (content.size() < (48 << 20))
        content.append(QByteArray(40, char(random.bounded(256)))).append(char(random.bounded(256)));
    std::vector<ZipWriter::File> files;
    for (int i = 0; i < 6; ++i)
        files.emplace_back(QString::number(i), content);
    ImportedTree tree;
    ZipReader archive(ZipWriter::archive(files), tree);
    int read = 0;
    while (read < 6 && archive.file(QString::number(read)))
        ++read;
    QCOMPARE(read, 5);
    QCOMPARE(tree.error(), QStringLiteral("5: it is too large"));
}

void TestZipArchive::shouldSayThatAFileIsDamaged()
{
    QByteArray bytes = archiveWith(QByteArray("0123456789abcdefghijklmnopqrstuvwxyz"));
    const int content = int(bytes.indexOf("content.json")) + int(qstrlen("content.json"));
    bytes[content + 8] = char(bytes.at(content + 8) ^ 0x55);
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    QVERIFY(archive.isOpen());
    QVERIFY(!archive.file(name));
    QCOMPARE(tree.error(), QStringLiteral("content.json: it is damaged"));
}

void TestZipArchive::shouldFindNoFileOfAnotherName()
{
    ImportedTree tree;
    ZipReader archive(archiveWith("x"), tree);
    QVERIFY(!archive.file(QStringLiteral("CONTENT.JSON")));
    QVERIFY(!archive.file(QStringLiteral("../content.json")));
    QCOMPARE(tree.error(), QString()); // that is no fault of the archive
}

void TestZipArchive::shouldSurviveAnyChange()
{
    const QByteArray whole = ZipWriter::archive(
        {{name, R"([{"rootTopic":{"title":"a","children":{"attached":[{"title":"b"}]}}}])"},
         {QStringLiteral("x"), QByteArray(1000, 'y')}});
    QRandomGenerator random(3);
    for (int round = 0; round < 1000; ++round) {
        QByteArray broken = whole;
        for (int change = 1 + random.bounded(4); change > 0; --change)
            broken[random.bounded(broken.size())] = char(random.bounded(256));
        for (const Format format : {Format::Xmind, Format::Xlsx}) {
            const Imported result = imported(broken, format);
            QVERIFY(bool(result.head) == result.error.isEmpty());
        }
    }
}

FISHBONE_GUILESS_TEST(TestZipArchive)

#include "tst_ziparchive.moc"
