// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/pastestep.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <fishbone/undo/undocommand.h>

#include <QtTest>

using namespace TestSupport;

/** What is pasted as a step of the history. */
class TestPasteStep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReplaceTheHeadOfADocumentInWhichNothingWasDone_data();
    void shouldReplaceTheHeadOfADocumentInWhichNothingWasDone();
    void shouldReplaceNothingWithoutADocument();
    void shouldMakeTheSubjectTheHead();
    void shouldPasteNewSubjectsBelowATarget();
};

namespace {

/** The snapshot of a subject "P" with two below it, as the editor copies it, times @p count. */
QJsonObject snapshot(int count = 1)
{
    const QJsonObject document = documentFromText(QStringLiteral("P[Q,R]"));
    QJsonArray subjects;
    for (int i = 0; i < count; ++i)
        subjects.append(document);
    return {{QStringLiteral("children"), subjects}};
}

} // namespace

void TestPasteStep::shouldReplaceTheHeadOfADocumentInWhichNothingWasDone_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<bool>("isModified");
    QTest::addColumn<int>("subjects");
    QTest::addColumn<bool>("replaces");
    QTest::newRow("fresh") << QStringLiteral("H") << false << 1 << true;
    QTest::newRow("with a bone") << QStringLiteral("H[A]") << false << 1 << false;
    QTest::newRow("modified") << QStringLiteral("H") << true << 1 << false;
    QTest::newRow("several") << QStringLiteral("H") << false << 2 << false;
}

void TestPasteStep::shouldReplaceTheHeadOfADocumentInWhichNothingWasDone()
{
    QFETCH(QString, document);
    QFETCH(bool, isModified);
    QFETCH(int, subjects);
    EditorFixture stage(document);
    stage.info->setFileName(QString());
    stage.info->setModified(isModified);
    QVERIFY(stage.info->isUntitled());
    QTEST(PasteStep::replacesHead(stage.info, snapshot(subjects)), "replaces");
}

void TestPasteStep::shouldReplaceNothingWithoutADocument()
{
    QVERIFY(!PasteStep::replacesHead(nullptr, snapshot()));
}

void TestPasteStep::shouldMakeTheSubjectTheHead()
{
    EditorFixture stage(QStringLiteral("H"));
    const QString uuid = stage.subject(QStringLiteral("H"))->uuid();
    QVERIFY(stage.editor.run(
        PasteStep::ofHead(&stage.model, stage.index(QStringLiteral("H")), snapshot())));
    const TreeItem *const head = stage.subject(QStringLiteral("P"));
    QVERIFY(head);
    QCOMPARE(head, stage.info->treeItem()->childAtIndex(0));
    QCOMPARE(head->uuid(), uuid);
    QCOMPARE(head->childCount(), 2);
    for (const TreeItem *child : head->childItems())
        QCOMPARE(child->pid(), uuid);
    stage.editor.undo(); // one step
    QVERIFY(stage.subject(QStringLiteral("H")));
    QCOMPARE(stage.subject(QStringLiteral("H"))->childCount(), 0);
}

void TestPasteStep::shouldPasteNewSubjectsBelowATarget()
{
    EditorFixture stage(QStringLiteral("P[Q,R]"));
    const QModelIndex target = stage.index(QStringLiteral("Q"));
    QVERIFY(stage.editor.run(PasteStep::below(&stage.model, target, snapshot())));
    const TreeItem *const copy = stage.subject(QStringLiteral("Q"))->childAtIndex(0);
    QVERIFY(copy);
    QCOMPARE(copy->title(), QStringLiteral("P"));
    QVERIFY(copy->uuid() != QLatin1String("u-P"));
    QCOMPARE(copy->childCount(), 2);
    QCOMPARE(copy->childAtIndex(0)->pid(), copy->uuid());
}

FISHBONE_TEST(TestPasteStep)
#include "tst_pastestep.moc"
