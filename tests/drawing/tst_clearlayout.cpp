// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleararrangement.h>
#include <fishbone/drawing/clearlayout.h>

#include <tests/drawing/clearpainter.h>
#include <tests/drawing/cleartrees.h>
#include <tests/program/testprogram.h>

#include <QtTest>

class TestClearLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeAsLargeAsPromisedOnASlide_data();
    void shouldBeAsLargeAsPromisedOnASlide();
};

void TestClearLayout::shouldBeAsLargeAsPromisedOnASlide_data()
{
    QTest::addColumn<qreal>("pixels");
    QTest::newRow("6m") << 33.1;
    QTest::newRow("100") << 17.4;
    QTest::newRow("unbal") << 28.9;
    QTest::newRow("sample") << 22.5;
}

void TestClearLayout::shouldBeAsLargeAsPromisedOnASlide()
{
    QFETCH(qreal, pixels);
    ClearTrees::Loaded tree = ClearTrees::load(ClearTrees::fixture(QTest::currentDataTag()));
    const ClearTree subjects(tree.subjects);
    const ClearFonts fonts(QFont(QStringLiteral("Noto Sans CJK SC")));
    ClearTextCache cache;
    ClearOptions base;
    base.hasLegend = true;
    const auto legend = ClearTrees::legend(tree);
    const ClearOptions best =
        ClearArrangement::bestFor(subjects, fonts, base, QSizeF(1920, 1080), cache, legend);
    const ClearLayout layout(subjects, fonts, best, cache, legend);
    const qreal scale = ClearArrangement::scaleOn(QSizeF(1920, 1080), layout.bounds());
    const QSizeF margin(16, 16);
    const QRectF with(layout.bounds().topLeft(), layout.bounds().size() + margin);
    qDebug() << best.wrap.limit << best.wrap.lines << int(best.sides) << best.headWidth
             << layout.bounds().size() << scale * ClearMeasure::causeSize
             << ClearArrangement::scaleOn(QSizeF(1920, 1080), with) * ClearMeasure::causeSize
             << layout.work();
    if (const QByteArray folder = qgetenv("FISHBONE_PICTURES"); !folder.isEmpty())
        ClearPainter::paint(layout, tree.statuses, 1.5)
            .save(QString::fromLocal8Bit(folder) + u'/' + QLatin1String(QTest::currentDataTag()) +
                  QStringLiteral(".png"));
    QVERIFY(scale * ClearMeasure::causeSize >= pixels);
}

FISHBONE_TEST(TestClearLayout)
#include "tst_clearlayout.moc"
