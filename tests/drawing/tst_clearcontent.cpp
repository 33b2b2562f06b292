// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcontent.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>

#include <QTest>

class TestClearContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldExplainEachIconOnce();
    void shouldSayHowManyVotesThereAre();
    void shouldCountWhatIsFolded();
};

/** What is under way and all done has the icon of what waits for approval. */
void TestClearContent::shouldExplainEachIconOnce()
{
    TreeItem head;
    head.insertChildren(0, 3, QString());
    const auto give = [&head](int row, TaskStatus status, int progress) {
        head.childAtIndex(row)->setStatus(status);
        head.childAtIndex(row)->setProgress(progress);
    };
    give(0, tsRunning, 100);
    give(1, tsWaittingAgree, 0);
    QCOMPARE(ClearContent::of(&head).legendTexts(),
             std::vector<QString>{ClearContent::meaningOf(tsWaittingAgree)});

    give(2, tsRunning, 40);
    QCOMPARE(ClearContent::of(&head).legendTexts(),
             (std::vector<QString>{ClearContent::meaningOf(tsRunning),
                                   ClearContent::meaningOf(tsWaittingAgree)}));
}

void TestClearContent::shouldSayHowManyVotesThereAre()
{
    QCOMPARE(ClearContent::textOfVotes(0), QString());
    QVERIFY(ClearContent::textOfVotes(12).contains(QStringLiteral("12")));
}

void TestClearContent::shouldCountWhatIsFolded()
{
    TreeItem head;
    head.insertChildren(0, 1, QString());
    head.childAtIndex(0)->insertChildren(0, 2, QString());
    head.childAtIndex(0)->childAtIndex(1)->insertChildren(0, 3, QString());
    QCOMPARE(countSubjects(head), 7);
    QCOMPARE(ClearContent::of(&head, 0).subjects.back().hidden, 5);
}

FISHBONE_GUILESS_TEST(TestClearContent)
#include "tst_clearcontent.moc"
