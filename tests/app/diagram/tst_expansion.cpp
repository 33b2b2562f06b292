// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/expansion.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <QtTest>

using namespace TestSupport;

/** How far bones are expanded. */
class TestExpansion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldExpandSoManyLevels_data();
    void shouldExpandSoManyLevels();
    void shouldExpandOneBone();
    void shouldExpandWhatIsAboveASubject();
    void shouldDoNothingWithoutADiagram();
    void shouldMakeBonesUnseen();
    void shouldEndTheMakingOfBones();
};

namespace {

/** The titles of the bones that show. */
QString visibleBones(const EditorFixture &stage)
{
    QStringList titles;
    for (const char *title : {"A", "B", "C", "D", "E"}) {
        const SpearItem *const bone = stage.spear(QString::fromLatin1(title));
        if (bone && bone->isVisible())
            titles.append(bone->text());
    }
    return titles.join(QString());
}

const QString diagram = QStringLiteral("H[A[B[C]],D[E]]");

} // namespace

void TestExpansion::shouldExpandSoManyLevels_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<QString>("visible");
    QTest::newRow("none") << 0 << "AD";
    QTest::newRow("one") << 1 << "ABDE";
    QTest::newRow("two") << 2 << "ABCDE";
    QTest::newRow("more than there are") << 9 << "ABCDE";
    QTest::newRow("all") << Expansion::allLevels << "ABCDE";
}

void TestExpansion::shouldExpandSoManyLevels()
{
    QFETCH(int, levels);
    QFETCH(QString, visible);
    for (const bool isExpanded : {false, true}) {
        EditorFixture stage(diagram);
        if (isExpanded)
            stage.editor.expandAll();
        Expansion::expandLevels(stage.editor, levels);
        QCOMPARE(visibleBones(stage), visible);
    }
}

void TestExpansion::shouldExpandOneBone()
{
    EditorFixture stage(diagram);
    SpearItem &bone = *stage.spear(QStringLiteral("A"));
    Expansion::setExpanded(stage.editor, bone, true);
    stage.editor.updateFish(false);
    QCOMPARE(visibleBones(stage), QStringLiteral("ABD"));
    Expansion::setExpanded(stage.editor, bone, false);
    stage.editor.updateFish(false);
    QCOMPARE(visibleBones(stage), QStringLiteral("AD"));
}

void TestExpansion::shouldExpandWhatIsAboveASubject()
{
    EditorFixture stage(diagram);
    const TreeItem &deepest = *stage.subject(QStringLiteral("C"));
    QVERIFY(Expansion::expandAbove(stage.editor, deepest));
    stage.editor.updateFish(false);
    QCOMPARE(visibleBones(stage), QStringLiteral("ABCD"));
    QVERIFY(!Expansion::expandAbove(stage.editor, deepest)); // there is nothing left to do
}

void TestExpansion::shouldDoNothingWithoutADiagram()
{
    FishEditor editor;
    Expansion::expandLevels(editor, 2);
    QVERIFY(!editor.headSpear());
    QVERIFY(editor.scene()->items().isEmpty());
}

void TestExpansion::shouldMakeBonesUnseen()
{
    EditorFixture stage(diagram);
    QStringList steps;
    QVERIFY(Expansion::makeBones(stage.editor, [&steps](int done, int total) {
        steps.append(QStringLiteral("%1/%2").arg(done).arg(total));
        return true;
    }));
    QCOMPARE(steps.join(QLatin1Char(' ')), QStringLiteral("1/6 2/6 3/6 4/6 5/6 6/6"));
    for (const char *title : {"A", "B", "C", "D", "E"})
        QVERIFY2(stage.spear(QString::fromLatin1(title)), title);
    QCOMPARE(visibleBones(stage), QStringLiteral("AD"));
}

void TestExpansion::shouldEndTheMakingOfBones()
{
    EditorFixture stage(diagram);
    QVERIFY(!Expansion::makeBones(stage.editor, [](int done, int) { return done < 2; }));
    QVERIFY(stage.spear(QStringLiteral("B")));
    QVERIFY(!stage.spear(QStringLiteral("C")));
    QVERIFY(!stage.spear(QStringLiteral("E")));
    QCOMPARE(visibleBones(stage), QStringLiteral("AD"));
    Expansion::expandLevels(stage.editor, Expansion::allLevels);
    QCOMPARE(visibleBones(stage), QStringLiteral("ABCDE"));
}

FISHBONE_TEST(TestExpansion)
#include "tst_expansion.moc"
