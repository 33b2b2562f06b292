// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/editor/spearmove.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

namespace {

struct Moved : Drawing
{
    Moved()
        : Drawing(QStringLiteral("H[A[B],C]"))
    {
    }

    SpearItem *bone(const char *title) const { return spear(QString::fromLatin1(title)); }
    QString faded() const
    {
        QString titles;
        for (const char *title : {"H", "A", "B", "C"}) {
            if (bone(title)->isMoving() && bone(title)->opacity() < 1)
                titles += QLatin1String(title);
        }
        return titles;
    }

    SpearMove move;
};

} // namespace

/** The spears that are moved with the mouse. */
class TestSpearMove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLastFromThePressToTheRelease();
    void shouldFadeWhatIsMoved();
    void shouldKnowTheSpearUnderTheMouse();
    void shouldFindTheLowestThatIsNotMoved();
    void shouldKnowWhatStandsBelowIt();
    void shouldForgetSpearsThatDie();
};

void TestSpearMove::shouldLastFromThePressToTheRelease()
{
    Moved drawn;
    QVERIFY(!drawn.move.isPressed());
    drawn.move.press();
    QVERIFY(drawn.move.isPressed());
    QVERIFY(!drawn.move.hasSelection());
    drawn.move.begin({drawn.bone("A"), drawn.bone("A")->textItem()}, {});
    QCOMPARE(drawn.move.selection(), QList<SpearItem *>{drawn.bone("A")});
    drawn.move.release();
    QVERIFY(!drawn.move.isPressed());
    QVERIFY(drawn.move.hasSelection()); // which is told of
    drawn.move.press();
    QVERIFY(!drawn.move.hasSelection());
}

void TestSpearMove::shouldFadeWhatIsMoved()
{
    Moved drawn;
    drawn.move.press();
    drawn.move.begin({drawn.bone("A"), drawn.bone("B"), drawn.bone("C")}, {});
    QCOMPARE(drawn.faded(), QStringLiteral("AC")); // B goes along with A
    drawn.move.press();                            // the release went elsewhere
    drawn.move.begin({drawn.bone("C")}, {});
    QCOMPARE(drawn.faded(), QStringLiteral("C"));
    drawn.move.restore();
    QCOMPARE(drawn.faded(), QString());
}

void TestSpearMove::shouldKnowTheSpearUnderTheMouse()
{
    Moved drawn;
    drawn.move.press();
    drawn.move.begin({drawn.bone("A")}, {drawn.bone("B"), drawn.bone("A"), drawn.bone("H")});
    QCOMPARE(drawn.move.pressedSpear(), drawn.bone("A"));
    drawn.move.release();
    QCOMPARE(drawn.move.pressedSpear(), nullptr);
    drawn.move.press();
    drawn.move.begin({drawn.bone("A")}, {drawn.bone("B")});
    QCOMPARE(drawn.move.pressedSpear(), nullptr);
}

void TestSpearMove::shouldFindTheLowestThatIsNotMoved()
{
    Moved drawn;
    drawn.move.press();
    drawn.move.begin({drawn.bone("A")}, {});
    QCOMPARE(drawn.move.candidate(
                 {drawn.bone("B"), drawn.bone("C"), drawn.bone("A"), drawn.bone("C")->textItem()}),
             drawn.bone("C"));
    QCOMPARE(drawn.move.candidate({drawn.bone("A")}), nullptr);
    QCOMPARE(drawn.move.candidate({}), nullptr);
}

void TestSpearMove::shouldKnowWhatStandsBelowIt()
{
    Moved drawn;
    drawn.move.press();
    drawn.move.begin({drawn.bone("A")}, {});
    QVERIFY(drawn.move.isInto(drawn.bone("B")));
    QVERIFY(!drawn.move.isInto(drawn.bone("C")));
    QVERIFY(!drawn.move.isInto(drawn.bone("H")));
    QVERIFY(!drawn.move.isInto(nullptr));
}

void TestSpearMove::shouldForgetSpearsThatDie()
{
    Moved drawn;
    drawn.move.press();
    drawn.move.begin({drawn.bone("A"), drawn.bone("C")}, {drawn.bone("A")});
    delete drawn.bone("A");
    QCOMPARE(drawn.move.selection(), QList<SpearItem *>{drawn.bone("C")});
    QCOMPARE(drawn.move.pressedSpear(), nullptr);
    drawn.move.restore();
    QCOMPARE(drawn.bone("C")->opacity(), 1.0);
}

FISHBONE_TEST(TestSpearMove)
#include "tst_spearmove.moc"
