// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/pagesize.h>

#include <QtTest>

/** Pages and screens that a drawing is arranged for. */
class TestPageSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowEachOfItsNames();
    void shouldReadSizes_data();
    void shouldReadSizes();
    void shouldReadNoOtherText_data();
    void shouldReadNoOtherText();
    void shouldConvertBetweenPaperAndScreen();
    void shouldKeepAMarginOnPaper();
};

void TestPageSize::shouldKnowEachOfItsNames()
{
    const QStringList names = PageSize::names();
    QVERIFY(names.contains(QStringLiteral("A4")));
    for (const QString &name : names) {
        const auto page = PageSize::of(name);
        QVERIFY2(page, qPrintable(name));
        QVERIFY2(page->size.width() > page->size.height(), qPrintable(name)); // lying
        QCOMPARE(PageSize::of(name.toLower())->size, page->size);
    }
}

void TestPageSize::shouldReadSizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("isPaper");
    QTest::newRow("A4") << "a4" << QSizeF(297, 210) << true;
    QTest::newRow("screen") << "16:9" << QSizeF(1920, 1080) << false;
    QTest::newRow("pixels") << "800x600" << QSizeF(800, 600) << false;
    QTest::newRow("said so") << "800x600PX" << QSizeF(800, 600) << false;
    QTest::newRow("millimetres") << "100.5x50mm" << QSizeF(100.5, 50) << true;
}

void TestPageSize::shouldReadSizes()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, size);
    QFETCH(bool, isPaper);
    const auto page = PageSize::of(text);
    QVERIFY(page);
    QCOMPARE(page->size, size);
    QCOMPARE(page->isMillimetres, isPaper);
}

void TestPageSize::shouldReadNoOtherText_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "A", "A44", "0x100", "100x0", "-1x5", "100x", "x100", "100x100cm",
                             "100 x 100", "1000000x5", "1x1x1"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TestPageSize::shouldReadNoOtherText()
{
    QFETCH(QString, text);
    QVERIFY(!PageSize::of(text));
}

void TestPageSize::shouldConvertBetweenPaperAndScreen()
{
    const PageSize paper{QSizeF(25.4, 50.8), true};
    QCOMPARE(paper.millimetres(), QSizeF(25.4, 50.8));
    QCOMPARE(paper.pixels(), QSize(192, 384));
    const PageSize screen{QSizeF(96, 192), false};
    QCOMPARE(screen.pixels(), QSize(96, 192));
    QCOMPARE(screen.millimetres(), QSizeF(25.4, 50.8));
}

void TestPageSize::shouldKeepAMarginOnPaper()
{
    QCOMPARE(PageSize::of(QStringLiteral("A4"))->drawable(), QSizeF(277, 190));
    QCOMPARE(PageSize::of(QStringLiteral("16:9"))->drawable(), QSizeF(1920, 1080));
    const PageSize label{QSizeF(60, 20), true}; // as high as the margins
    QCOMPARE(label.drawable(), QSizeF(60, 20));
}

FISHBONE_GUILESS_TEST(TestPageSize)
#include "tst_pagesize.moc"
