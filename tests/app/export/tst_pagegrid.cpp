// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/pagegrid.h>
#include <tests/program/testprogram.h>

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

class TestPageGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPutWhatFitsIntoTheMiddleOfOnePage();
    void shouldOverlapAndCover();
    void shouldRepeatEveryTextThatIsCut_data();
    void shouldRepeatEveryTextThatIsCut();
    void shouldPassTextsThatFitOnNoPage();
    void shouldSayWhatIsCutOff();
    void shouldRefuseTooManyPages();

private:
    static constexpr int m_limit = 400;
};

void TestPageGrid::shouldPutWhatFitsIntoTheMiddleOfOnePage()
{
    const QRectF drawing(-20, 30, 90, 40);
    const PageGrid grid(drawing, QSizeF(100, 50), 10, {}, m_limit);
    QCOMPARE(grid.count(), 1);
    QCOMPARE(grid.part(0).center(), drawing.center());
    QCOMPARE(grid.part(0).size(), QSizeF(100, 50));
    QCOMPARE(grid.own(0), grid.part(0));
    QCOMPARE(PageGrid().count(), 0);
    QCOMPARE(PageGrid(QRectF(), QSizeF(100, 50), 0, {}, m_limit).count(), 0);
}

void TestPageGrid::shouldOverlapAndCover()
{
    const QRectF drawing(5, 7, 250, 90);
    const PageGrid grid(drawing, QSizeF(100, 50), 10, {}, m_limit);
    QCOMPARE(grid.columns(), 3); // 250 take 100 + 90 + 60
    QCOMPARE(grid.rows(), 2);    // 90 take 50 + 40
    QRectF all;
    const QList<QRectF> parts = grid.parts();
    for (const QRectF &part : parts)
        all |= part;
    QCOMPARE(all, drawing); // and no paper stays empty
    for (int column = 1; column < grid.columns(); ++column)
        QVERIFY(parts.at(column - 1).right() - parts.at(column).left() >= 10 - 1e-9);
    QVERIFY(parts.at(0).bottom() - parts.at(grid.columns()).top() >= 10 - 1e-9);
}

void TestPageGrid::shouldRepeatEveryTextThatIsCut_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("longest");
    for (int seed = 1; seed <= 20; ++seed)
        QTest::addRow("%d", seed) << seed << (seed % 4 + 1) * 90;
}

void TestPageGrid::shouldRepeatEveryTextThatIsCut()
{
    QFETCH(int, seed);
    QFETCH(int, longest);
    QRandomGenerator random{quint32(seed)};
    const QRectF drawing(0, 0, 3000, 1500);
    QList<QRectF> texts;
    for (int i = 0; i < 300; ++i) {
        const QSizeF size(random.bounded(20, longest), random.bounded(12, 60));
        texts.append(QRectF(QPointF(random.bounded(3000 - int(size.width())),
                                    random.bounded(1500 - int(size.height()))),
                            size));
    }
    const PageGrid grid(drawing, QSizeF(400, 300), 20, texts, m_limit);
    QVERIFY(grid.count() > 0);
    const QList<QRectF> parts = grid.parts();
    for (const QRectF &text : qAsConst(texts)) {
        QVERIFY(std::any_of(parts.cbegin(), parts.cend(),
                            [&text](const QRectF &part) { return part.contains(text); }));
    }
    for (const QRectF &part : parts)
        QVERIFY(drawing.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(part));
}

void TestPageGrid::shouldPassTextsThatFitOnNoPage()
{
    const QRectF drawing(0, 0, 1000, 40);
    const PageGrid grid(drawing, QSizeF(100, 50), 10, {QRectF(50, 5, 800, 20)}, m_limit);
    QCOMPARE(grid.count(), PageGrid(drawing, QSizeF(100, 50), 10, {}, m_limit).count());
}

void TestPageGrid::shouldSayWhatIsCutOff()
{
    const PageGrid grid(QRectF(0, 0, 180, 90), QSizeF(100, 50), 10, {}, m_limit);
    QCOMPARE(grid.count(), 4);
    QCOMPARE(grid.own(0), QRectF(0, 0, 80, 40));
    QCOMPARE(grid.own(1), QRectF(80, 0, 100, 40));
    QCOMPARE(grid.own(2), QRectF(0, 40, 80, 50));
    QCOMPARE(grid.own(3), grid.part(3));
}

void TestPageGrid::shouldRefuseTooManyPages()
{
    QCOMPARE(PageGrid(QRectF(0, 0, 1e6, 40), QSizeF(100, 50), 10, {}, m_limit).count(), 0);
    QCOMPARE(PageGrid(QRectF(0, 0, 2500, 1500), QSizeF(100, 50), 10, {}, m_limit).count(), 0);
    QCOMPARE(PageGrid(QRectF(0, 0, 2500, 1500), QSizeF(100, 50), 60, {}, 10000).count(), 0);
}

FISHBONE_GUILESS_TEST(TestPageGrid)
#include "tst_pagegrid.moc"
