// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/svgcache.h>
#include <tests/items/boneparts.h>
#include <tests/program/testprogram.h>

#include <fishbone/base/onepass.h>

#include <QApplication>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

namespace {
using BoneParts::expandFile;

/** What the first of the two application objects of this program saw. */
struct FirstApplication
{
    bool parsed = false;
    bool owned = false;
    int parsedFiles = 0;
} firstApplication;

QStringList &warnings()
{
    static QStringList lines;
    return lines;
}

void keepWarning(QtMsgType, const QMessageLogContext &, const QString &line)
{
    warnings().append(line);
}
} // namespace

class TestSvgCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldParseAFileOnceForEachApplicationObject();
    void shouldHaveARendererOfThePicture();
    void shouldShareTheRendererOfAFile();
    void shouldKeepFilesApart();
    void shouldHaveNothingForAnEmptyName();
    void shouldHaveNothingForAFileThatIsNoPicture_data();
    void shouldHaveNothingForAFileThatIsNoPicture();
    void shouldLookAgainForAFileThatWasMissing();
    void shouldReadFilesOutsideTheResources();
    void shouldHaveNoPixelsOfAFileThatIsNoPicture();
    void shouldMakePixelsOfAnyNumberOfSizes();

private:
    QString written(const QString &name, const QByteArray &content) const
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path
                                                                                        : QString();
    }

    QTemporaryDir m_folder;
};

void TestSvgCache::shouldParseAFileOnceForEachApplicationObject()
{
    QVERIFY(firstApplication.parsed);
    QVERIFY(firstApplication.owned);
    QCOMPARE(firstApplication.parsedFiles, 1);

    // The renderers went with the first application; the second one has its own.
    const QSvgRenderer *const renderer = sharedSvgRenderer(expandFile());

    QVERIFY(renderer);
    QCOMPARE(renderer->parent(), qApp);
    QVERIFY(renderer->isValid());
    QCOMPARE(parsedSvgFileCount(), 2);
}

void TestSvgCache::shouldHaveARendererOfThePicture()
{
    const QSvgRenderer expected(expandFile());

    QCOMPARE(sharedSvgRenderer(expandFile())->defaultSize(), expected.defaultSize());
    QCOMPARE(sharedSvgRenderer(expandFile())->viewBoxF(), expected.viewBoxF());
}

void TestSvgCache::shouldShareTheRendererOfAFile()
{
    const QString file = QStringLiteral(":/fishboneDiagram/contract.svg");
    const int before = parsedSvgFileCount();

    const QSvgRenderer *const renderer = sharedSvgRenderer(file);

    QVERIFY(renderer);
    QCOMPARE(parsedSvgFileCount(), before + 1);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(sharedSvgRenderer(file), renderer);
    QCOMPARE(parsedSvgFileCount(), before + 1);
}

void TestSvgCache::shouldKeepFilesApart()
{
    QVERIFY(sharedSvgRenderer(expandFile()) !=
            sharedSvgRenderer(QStringLiteral(":/fishboneDiagram/contract.svg")));
}

void TestSvgCache::shouldHaveNothingForAnEmptyName()
{
    const int before = parsedSvgFileCount();

    QCOMPARE(sharedSvgRenderer(QString()), nullptr);
    QCOMPARE(sharedSvgRenderer(QStringLiteral("")), nullptr);
    QCOMPARE(parsedSvgFileCount(), before);
}

void TestSvgCache::shouldHaveNothingForAFileThatIsNoPicture_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("broken") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"><rect");
    QTest::newRow("bitmap") << QByteArray("\x89PNG\r\n\x1a\n", 8);
}

void TestSvgCache::shouldHaveNothingForAFileThatIsNoPicture()
{
    QFETCH(QByteArray, content);
    const QString file = written(QLatin1String(QTest::currentDataTag()), content);
    QVERIFY(!file.isEmpty());
    const int before = parsedSvgFileCount();

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot read file")));
    QCOMPARE(sharedSvgRenderer(file), nullptr);
    QCOMPARE(sharedSvgRenderer(file), nullptr);

    QCOMPARE(parsedSvgFileCount(), before + 1); // asked once
}

void TestSvgCache::shouldLookAgainForAFileThatWasMissing()
{
    const QString file = m_folder.filePath(QStringLiteral("late.svg"));
    warnings().clear();
    const QtMessageHandler previous = qInstallMessageHandler(keepWarning);
    const QSvgRenderer *const missing = sharedSvgRenderer(file);
    qInstallMessageHandler(previous);

    QCOMPARE(missing, nullptr);
    QCOMPARE(warnings(), QStringList()); // a host may leave pictures out
    {
        const OnePass pass;
        QCOMPARE(sharedSvgRenderer(file), nullptr);
        QVERIFY(QFile::copy(expandFile(), file));
        QCOMPARE(sharedSvgRenderer(file), nullptr); // looked for once
    }
    QVERIFY(sharedSvgRenderer(file));
}

void TestSvgCache::shouldReadFilesOutsideTheResources()
{
    const QString file = m_folder.filePath(QStringLiteral("copy.svg"));
    QVERIFY(QFile::copy(expandFile(), file));

    const QSvgRenderer *const renderer = sharedSvgRenderer(file);

    QVERIFY(renderer);
    QVERIFY(renderer != sharedSvgRenderer(expandFile()));
}

void TestSvgCache::shouldHaveNoPixelsOfAFileThatIsNoPicture()
{
    QVERIFY(screenPicture(QString(), {10, 10}).isNull());
    QVERIFY(screenPicture(m_folder.filePath(QStringLiteral("no.svg")), {10, 10}).isNull());
}

void TestSvgCache::shouldMakePixelsOfAnyNumberOfSizes()
{
    const QImage first = screenPicture(expandFile(), {20, 20}).toImage();
    for (int width = 1; width <= 50; ++width) {
        for (int height = 1; height <= 50; ++height)
            QCOMPARE(screenPicture(expandFile(), {width, height}).size(), QSize(width, height));
    }
    QCOMPARE(screenPicture(expandFile(), {20, 20}).toImage(), first);
}

static int run(int argc, char *argv[])
{
    {
        const QApplication application(argc, argv);
        const QSvgRenderer *const renderer = sharedSvgRenderer(expandFile());
        firstApplication.parsed = renderer && sharedSvgRenderer(expandFile()) == renderer;
        firstApplication.owned = renderer && renderer->parent() == &application;
        firstApplication.parsedFiles = parsedSvgFileCount();
    }
    const QApplication application(argc, argv);
    TestSvgCache test;
    return QTest::qExec(&test, argc, argv);
}
FISHBONE_TEST_MAIN(run)
#include "tst_svgcache.moc"
