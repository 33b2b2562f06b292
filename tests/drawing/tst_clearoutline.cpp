// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearoutline.h>

#include <QtTest>

#include <algorithm>
#include <random>

#include <tests/program/testprogram.h>

namespace {
constexpr qreal margin = 1.5;
constexpr qreal none = -1e300;

/** What @p steps say at @p place; none where they say nothing. */
qreal valueAt(const ClearSteps &steps, qreal place)
{
    qreal found = none;
    steps.forEach([&](qreal from, qreal to, qreal value) {
        if (place >= from && place < to)
            found = value;
    });
    return found;
}

/** The same of the boxes themselves, looked at one by one. */
qreal highestAt(const std::vector<ClearBox> &boxes, qreal place)
{
    qreal highest = none;
    for (const ClearBox &box : boxes) {
        if (place >= box.from - margin && place < box.to + margin)
            highest = std::max(highest, box.high);
    }
    return highest;
}

qreal lowestAt(const std::vector<ClearBox> &boxes, qreal place)
{
    qreal lowest = -none;
    for (const ClearBox &box : boxes) {
        if (place >= box.from - margin && place < box.to + margin)
            lowest = std::min(lowest, box.low);
    }
    return lowest == -none ? none : lowest;
}

/** Small boxes, and a few over much of the line, some as high as each other. */
std::vector<ClearBox> someBoxes(std::mt19937 &random, int count)
{
    std::uniform_real_distribution<qreal> place(-300, 300);
    std::uniform_real_distribution<qreal> size(0.2, 12);
    std::vector<ClearBox> boxes;
    for (int i = 0; i < count; ++i) {
        const qreal from = place(random);
        const qreal low = i % 5 == 0 ? 20 : place(random);
        const qreal length = i % 50 == 0 ? 40 * size(random) : size(random);
        boxes.push_back({from, from + length, low, low + (i % 5 == 0 ? 8 : size(random))});
    }
    return boxes;
}
} // namespace

class TestClearOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowOfManyBoxesWhatComesFurthest_data();
    void shouldShowOfManyBoxesWhatComesFurthest();
    void shouldBeEmptyWithoutBoxes();
    void shouldRestWhereAShapeIsDropped();
};

void TestClearOutline::shouldShowOfManyBoxesWhatComesFurthest_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 7, 60, 400, 3000})
        QTest::addRow("%d", count) << count;
}

void TestClearOutline::shouldShowOfManyBoxesWhatComesFurthest()
{
    QFETCH(int, count);
    std::mt19937 random(11);
    for (int turn = 0; turn < 5; ++turn) {
        const std::vector<ClearBox> boxes = someBoxes(random, count);
        const ClearOutline outline = ClearOutline::ofBoxes(boxes, margin);
        qreal start = -none;
        qreal bottom = -none;
        for (const ClearBox &box : boxes) {
            start = std::min(start, box.from);
            bottom = std::min(bottom, box.low);
        }
        QCOMPARE(outline.start(), start);
        QCOMPARE(outline.bottom(), bottom);
        for (qreal place = -320; place < 900; place += 1.7) {
            QCOMPARE(valueAt(outline.upper(), place), highestAt(boxes, place));
            QCOMPARE(valueAt(outline.lower(), place), lowestAt(boxes, place));
        }
    }
}

void TestClearOutline::shouldBeEmptyWithoutBoxes()
{
    const ClearOutline outline = ClearOutline::ofBoxes({}, margin);
    QVERIFY(outline.isEmpty());
    QVERIFY(outline.upper().isEmpty());
    QVERIFY(outline.lower().isEmpty());
}

/** Dropped by what drop() says, a shape touches the one below somewhere and reaches into it
 * nowhere. */
void TestClearOutline::shouldRestWhereAShapeIsDropped()
{
    std::mt19937 random(7);
    for (int turn = 0; turn < 20; ++turn) {
        const std::vector<ClearBox> below = someBoxes(random, 60);
        const std::vector<ClearBox> above = someBoxes(random, 20);
        const ClearOutline lower = ClearOutline::ofBoxes(below, 0);
        const qreal along = 3.25 * turn;
        const qreal across = lower.drop(ClearOutline::ofBoxes(above, 0), along, none);
        qreal nearest = -none;
        for (const ClearBox &one : below) {
            for (const ClearBox &other : above) {
                if (other.from + along < one.to && one.from < other.to + along)
                    nearest = std::min(nearest, other.low + across - one.high);
            }
        }
        QVERIFY2(qAbs(nearest) < 1e-6, qPrintable(QString::number(nearest)));
    }
}

FISHBONE_GUILESS_TEST(TestClearOutline)
#include "tst_clearoutline.moc"
