// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that concerns titles and styles.

#include <fishbone/items/spearitem.h>

#include <QTextDocument>
#include <QtTest>

#include <tests/items/boneparts.h>
#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

class TestSpearItemStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCutTheTitle_data();
    void shouldCutTheTitle();
    void shouldLeaveTheCountsOfAHeadOut_data();
    void shouldLeaveTheCountsOfAHeadOut();
    void shouldShowTheCountsOfAnyOtherSubject();
    void shouldSetTitleAndToolTipTogether();
    void shouldFollowTheTitleOfItsSubject();
    void shouldTakeTheToolTipFromItsSubject();
    void shouldPreferTheStrongerState_data();
    void shouldPreferTheStrongerState();
    void shouldStoreTheStateOfAPaint();
    void shouldUseTheStyleOfItsSubjectAlone();
    void shouldUseTheGlobalStyleOtherwise();
    void shouldCutBetweenCharacters_data();
    void shouldCutBetweenCharacters();
    void shouldHaveDefaultsForWhatAStyleLeavesOut();
    void shouldMeasureInTheFontOfItsState();
    void shouldFollowTheStateBeforeItIsPainted();
};

namespace {
using BoneParts::newSpear;
using ShownBones::effect;
using ShownBones::machine;
using ShownBones::man;
} // namespace

void TestSpearItemStyle::shouldCutTheTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shown");

    const QString fishbone = QStringLiteral("Fishbone");
    QTest::newRow("six of eight") << fishbone << 6 << QStringLiteral("Fishbo");
    QTest::newRow("one") << fishbone << 1 << QStringLiteral("F");
    QTest::newRow("seven of eight") << fishbone << 7 << QStringLiteral("Fishbon");
    QTest::newRow("as many as there are") << fishbone << 8 << fishbone;
    QTest::newRow("more than there are") << fishbone << 9 << fishbone;
    QTest::newRow("no limit") << fishbone << 0 << fishbone;
    QTest::newRow("below none") << fishbone << -1 << fishbone;
    QTest::newRow("empty title") << QString() << 6 << QString();
    QTest::newRow("Chinese") << QStringLiteral("技能与培训") << 2 << QStringLiteral("技能");
    const QString fish = QString::fromUtf8("a\xF0\x9F\x90\x9F"
                                           "b"); // two units for the fish
    QTest::newRow("before a pair") << fish << 1 << QStringLiteral("a");
    QTest::newRow("within a pair") << fish << 2 << QStringLiteral("a");
    QTest::newRow("behind a pair") << fish << 3 << fish.left(3);
    QTest::newRow("counts of no head")
        << QStringLiteral("Plan (2024)") << 0 << QStringLiteral("Plan (2024)");
}

void TestSpearItemStyle::shouldCutTheTitle()
{
    QFETCH(QString, title);
    QFETCH(int, count);
    QFETCH(QString, shown);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks(count));
    SpearItem *const spear = drawing.spear(man);

    spear->setText(title);

    QCOMPARE(spear->textDisplayCount(), count);
    QCOMPARE(spear->textDisplay(), shown);
    QCOMPARE(spear->textItem()->toPlainText(), shown);
    QCOMPARE(spear->text(), title);
}

void TestSpearItemStyle::shouldLeaveTheCountsOfAHeadOut_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("boxText");
    QTest::addColumn<QString>("display");

    const QString plan = QStringLiteral("Plan (2024) review");
    QTest::newRow("whole") << plan << 0 << plan << QStringLiteral("Plan ");
    QTest::newRow("cut before the digit")
        << plan << 6 << QStringLiteral("Plan (") << QStringLiteral("Plan (");
    QTest::newRow("cut behind the digit")
        << plan << 7 << QStringLiteral("Plan (2") << QStringLiteral("Plan ");
    QTest::newRow("the second parenthesis")
        << QStringLiteral("A (b) (1) (2)") << 0 << QStringLiteral("A (b) (1) (2)")
        << QStringLiteral("A (b) ");
    QTest::newRow("at the start") << QStringLiteral("(1)") << 0 << QStringLiteral("(1)")
                                  << QString();
    QTest::newRow("no digit") << QStringLiteral("A (b)") << 0 << QStringLiteral("A (b)")
                              << QStringLiteral("A (b)");
    QTest::newRow("a digit of another script")
        << QStringLiteral("A (٣)") << 0 << QStringLiteral("A (٣)") << QStringLiteral("A (٣)");
    QTest::newRow("doubled") << QStringLiteral("A((1)") << 0 << QStringLiteral("A((1)")
                             << QStringLiteral("A(");
}

void TestSpearItemStyle::shouldLeaveTheCountsOfAHeadOut()
{
    QFETCH(QString, title);
    QFETCH(int, count);
    QFETCH(QString, boxText);
    QFETCH(QString, display);
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks(count));
    QVERIFY(drawing.node(effect)->isTopVaildItem());

    drawing.head->setText(title);

    QCOMPARE(drawing.head->textItem()->toPlainText(), boxText);
    QCOMPARE(drawing.head->textDisplay(), display);
}

void TestSpearItemStyle::shouldShowTheCountsOfAnyOtherSubject()
{
    const QString title = QStringLiteral("Plan (2024)");
    SpearItem spear(title, 0, 20.0);
    TreeItem alone;
    alone.setSpearStyle(styleWithLooks());

    alone.setSpear(&spear, QModelIndex());
    spear.updateTextMetrics();

    QCOMPARE(spear.treeItem(), &alone);
    QCOMPARE(spear.textDisplay(), title);
}

void TestSpearItemStyle::shouldSetTitleAndToolTipTogether()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    SpearItem *const spear = drawing.spear(man);
    const double before = spear->textWidth();
    QSignalSpy changes(&drawing.scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changes.clear();

    spear->setText(QStringLiteral("Man and machine"));
    QCoreApplication::processEvents();

    QCOMPARE(spear->text(), QStringLiteral("Man and machine"));
    QCOMPARE(spear->toolTip(), QStringLiteral("Man and machine"));
    QVERIFY(spear->textWidth() > before);
    QVERIFY(changes.count() > 0);
}

void TestSpearItemStyle::shouldFollowTheTitleOfItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);

    drawing.node(man)->setTitle(QStringLiteral("Method"));

    QCOMPARE(spear->text(), QStringLiteral("Method"));
    QCOMPARE(spear->textItem()->toPlainText(), QStringLiteral("Method"));
}

void TestSpearItemStyle::shouldTakeTheToolTipFromItsSubject()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    drawing.node(man)->setShowid(QStringLiteral("T-1"));
    SpearItem *const spear = drawing.spear(man);

    spear->updateToolTip();
    QCOMPARE(spear->toolTip(), QStringLiteral("T-1 Man"));

    const auto alone = newSpear();
    alone->updateToolTip();
    QCOMPARE(alone->toolTip(), QStringLiteral("Cause"));
}

void TestSpearItemStyle::shouldPreferTheStrongerState_data()
{
    QTest::addColumn<bool>("linked");
    QTest::addColumn<int>("optionState");
    QTest::addColumn<int>("state");

    const int selected = QStyle::State_Selected;
    const int hovered = QStyle::State_MouseOver;
    QTest::newRow("none") << false << 0 << int(SpearStyle::ssNormal);
    QTest::newRow("others") << false << int(QStyle::State_HasFocus | QStyle::State_Enabled)
                            << int(SpearStyle::ssNormal);
    QTest::newRow("selected") << false << selected << int(SpearStyle::ssSelected);
    QTest::newRow("hovered") << false << hovered << int(SpearStyle::ssHovered);
    QTest::newRow("both") << false << (selected | hovered) << int(SpearStyle::ssHovered);
    QTest::newRow("linked") << true << 0 << int(SpearStyle::ssLinked);
    QTest::newRow("linked, selected") << true << selected << int(SpearStyle::ssLinked);
    QTest::newRow("linked, hovered") << true << hovered << int(SpearStyle::ssLinked);
    QTest::newRow("all") << true << (selected | hovered) << int(SpearStyle::ssLinked);
}

void TestSpearItemStyle::shouldPreferTheStrongerState()
{
    QFETCH(bool, linked);
    QFETCH(int, optionState);
    QFETCH(int, state);
    const auto spear = newSpear();
    spear->setLinked(linked, 0);
    QStyleOptionGraphicsItem option;
    option.state = QStyle::State(optionState);

    QCOMPARE(int(spear->spearState(&option)), state);
}

void TestSpearItemStyle::shouldStoreTheStateOfAPaint()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    for (SpearItem *spear : {drawing.head, drawing.spear(man)}) {
        paintedItem(*spear, {{0, 0, 1, 1}}, QStyle::State_Selected);
        QCOMPARE(spear->currentState(), SpearStyle::ssSelected);
        QCOMPARE(spear->font(), lookOf(SpearStyle::ssSelected).font);

        paintedItem(*spear, {{0, 0, 1, 1}}, QStyle::State_Selected | QStyle::State_MouseOver);
        QCOMPARE(spear->currentState(), SpearStyle::ssHovered);

        paintedItem(*spear, {{0, 0, 1, 1}});
        QCOMPARE(spear->currentState(), SpearStyle::ssNormal);
        QCOMPARE(spear->font(), lookOf(SpearStyle::ssNormal).font);
    }
}

void TestSpearItemStyle::shouldUseTheStyleOfItsSubjectAlone()
{
    SpearStyle::global()->setTextColor(SpearStyle::ssHovered, Qt::red);
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    TreeItem *const subject = drawing.node(man);
    SpearItem *const spear = drawing.spear(man);
    drawing.head->treeItem()->setSpearStyle(styleWithLooks());
    QCOMPARE(spear->style(), SpearStyle::global()); // nothing comes from the parent

    subject->setSpearStyle(QJsonObject{{QStringLiteral("textCount"), 3}});
    QCOMPARE(spear->style(), subject->spearStyle());
    QCOMPARE(spear->textDisplayCount(), 3);
    QVERIFY(!spear->textColor(SpearStyle::ssHovered).isValid()); // and nothing from the global one

    subject->delSpearStyle();
    QCOMPARE(spear->style(), SpearStyle::global());
    QCOMPARE(spear->textColor(SpearStyle::ssHovered), QColor(Qt::red));
    SpearStyle::global()->setTextColor(SpearStyle::ssHovered, QColor());
}

void TestSpearItemStyle::shouldUseTheGlobalStyleOtherwise()
{
    const auto spear = newSpear(QStringLiteral("Fishbone"));

    QCOMPARE(spear->style(), SpearStyle::global());
    QCOMPARE(spear->textDisplayCount(), SpearStyle::global()->textCount());
    QCOMPARE(spear->textDisplay(), QStringLiteral("Fishbo"));
}

void TestSpearItemStyle::shouldCutBetweenCharacters_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("shown"); // UTF-16 units

    const QString five = QStringLiteral("abcde");
    const QChar first(0xd83d);
    const QChar second(0xde00);
    QTest::newRow("letters") << five + QStringLiteral("fgh") << 6;
    QTest::newRow("a character at the end") << QStringLiteral("abcd") + first + second + five << 6;
    QTest::newRow("a character across the end") << five + first + second << 5;
    QTest::newRow("half a character at the end") << five + first + QLatin1Char('x') << 6;
}

void TestSpearItemStyle::shouldCutBetweenCharacters()
{
    QFETCH(QString, title);
    QFETCH(int, shown);
    SpearStyle::global()->setTextCount(6);

    QCOMPARE(newSpear(title)->textDisplay(), title.left(shown));
}

void TestSpearItemStyle::shouldHaveDefaultsForWhatAStyleLeavesOut()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), {{QStringLiteral("textCount"), 6}});
    const SpearItem *const spear = drawing.spear(man);

    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i) {
        const auto state = SpearStyle::SpearState(i);
        QCOMPARE(spear->textFont(state), QFont());
        QCOMPARE(spear->broaderPen(state), QPen());
        QVERIFY(!spear->textColor(state).isValid());
        QVERIFY(!spear->textBkColor(state).isValid());
    }
}

void TestSpearItemStyle::shouldMeasureInTheFontOfItsState()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    SpearItem *const spear = drawing.spear(man);

    for (int i = SpearStyle::ssNormal; i <= SpearStyle::ssLinked; ++i) {
        const auto state = SpearStyle::SpearState(i);
        QTextDocument expected;
        expected.setDefaultFont(lookOf(state).font);
        expected.setPlainText(man);

        spear->applyState(state);

        QCOMPARE(spear->currentState(), state);
        QCOMPARE(spear->font(), lookOf(state).font);
        QCOMPARE(spear->textItem()->font(), lookOf(state).font);
        QCOMPARE(spear->textWidth(), expected.size().width());
        QCOMPARE(spear->textHeight(), expected.size().height());
        QCOMPARE(spear->textItem()->defaultTextColor(), lookOf(state).text);
        QCOMPARE(spear->textColor(state), lookOf(state).text);
        QCOMPARE(spear->textBkColor(state), lookOf(state).background);
        QCOMPARE(spear->broaderPen(state), lookOf(state).pen);
        QCOMPARE(spear->pen(), lookOf(state).pen);
    }
}

void TestSpearItemStyle::shouldFollowTheStateBeforeItIsPainted()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"), styleWithLooks());
    SpearItem *const spear = drawing.spear(man);

    spear->setSelected(true);
    QCOMPARE(spear->currentState(), SpearStyle::ssSelected);
    sendHover(*spear, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(spear->currentState(), SpearStyle::ssHovered);
    spear->setLinked(true, 2);
    QCOMPARE(spear->currentState(), SpearStyle::ssLinked);
    spear->setLinked(false, 0);
    QCOMPARE(spear->currentState(), SpearStyle::ssHovered);
    sendHover(*spear, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(spear->currentState(), SpearStyle::ssSelected);
    spear->setSelected(false);
    QCOMPARE(spear->currentState(), SpearStyle::ssNormal);
}

FISHBONE_TEST(TestSpearItemStyle)
#include "tst_spearitem_style.moc"
