// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/slideshapes.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/slideconnections.h>
#include <fishbone/exchange/slidegroups.h>

#include <QtTest>

using namespace SlideShapes;

namespace {

std::vector<std::vector<int>> groupsOf(const std::vector<SlideShape> &shapes)
{
    return SlideGroups::of(shapes, SlideConnections(shapes));
}

using Groups = std::vector<std::vector<int>>;

} // namespace

/** What of a slide is moved as one. */
class TestSlideGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGroupACategoryWithItsTitleAndIcons();
    void shouldGroupHeadAndTailWithTheSpine();
    void shouldEndAGroupWhereTheNextBoneBegins();
    void shouldLeaveAloneWhatNoLineLeadsTo();
    void shouldLeaveAloneABoxWithoutATitle();
    void shouldTakeATitleFromBehindWhatIsElsewhere();
    void shouldNotLiftAShapeOverAnother();
};

void TestSlideGroups::shouldGroupACategoryWithItsTitleAndIcons()
{
    QCOMPARE(groupsOf({line(QPointF(0, 0), QPointF(100, 105)), box(QRectF(100, 100, 80, 20)),
                       title(QRectF(120, 98, 50, 24)), box(QRectF(104, 104, 12, 12)),
                       line(QPointF(106, 106), QPointF(112, 112))}),
             (Groups{{0}, {1, 2, 3, 4}}));
}

void TestSlideGroups::shouldGroupHeadAndTailWithTheSpine()
{
    QCOMPARE(groupsOf({box(QRectF(0, 0, 500, 4)), box(QRectF(-20, -10, 22, 24)),
                       box(QRectF(498, -20, 80, 44)), title(QRectF(510, -8, 90, 20)),
                       line(QPointF(300, 2), QPointF(250, 90))}),
             (Groups{{0, 1, 2, 3}, {4}}));
}

void TestSlideGroups::shouldEndAGroupWhereTheNextBoneBegins()
{
    QCOMPARE(groupsOf({line(QPointF(0, 0), QPointF(100, 105)), box(QRectF(100, 100, 80, 20)),
                       title(QRectF(120, 98, 50, 24)), line(QPointF(50, 52.5), QPointF(20, 90)),
                       title(QRectF(130, 110, 40, 20))}),
             (Groups{{0}, {1, 2}, {3}, {4}}));
}

void TestSlideGroups::shouldLeaveAloneWhatNoLineLeadsTo()
{
    QCOMPARE(groupsOf({box(QRectF(100, 100, 80, 20)), title(QRectF(120, 98, 50, 24))}),
             (Groups{{0}, {1}}));
}

void TestSlideGroups::shouldLeaveAloneABoxWithoutATitle()
{
    QCOMPARE(groupsOf({line(QPointF(0, 0), QPointF(100, 105)), box(QRectF(100, 100, 80, 20)),
                       box(QRectF(104, 104, 12, 12))}),
             (Groups{{0}, {1}, {2}}));
}

/** As the title of the head, which comes after the legend. */
void TestSlideGroups::shouldTakeATitleFromBehindWhatIsElsewhere()
{
    QCOMPARE(groupsOf({box(QRectF(100, 100, 80, 20)), box(QRectF(0, 300, 20, 20)),
                       title(QRectF(30, 300, 50, 20)), title(QRectF(120, 98, 50, 24)),
                       line(QPointF(0, 0), QPointF(100, 105))}),
             (Groups{{0, 3}, {1}, {2}, {4}}));
}

void TestSlideGroups::shouldNotLiftAShapeOverAnother()
{
    // The last title reaches over the box, and lies on the one beside it.
    QCOMPARE(groupsOf({box(QRectF(100, 100, 80, 20)), title(QRectF(110, 98, 20, 24)),
                       title(QRectF(200, 98, 50, 24)), title(QRectF(170, 98, 50, 24)),
                       line(QPointF(0, 0), QPointF(100, 105))}),
             (Groups{{0, 1}, {2}, {3}, {4}}));
}

FISHBONE_GUILESS_TEST(TestSlideGroups)

#include "tst_slidegroups.moc"
