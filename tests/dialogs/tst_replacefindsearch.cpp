// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/replacefinddialog.h>
#include <tests/dialogs/replacefindparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/messagebox.h>

#include <QCheckBox>
#include <QtTest>

#include <memory>

using namespace ReplaceFindParts;
using TestSupport::keepMessage;
using TestSupport::Message;
using TestSupport::ModalDriver;

class TestReplaceFindSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindOnEveryLevelInPreOrder();
    void shouldSearchTheChosenColumn_data();
    void shouldSearchTheChosenColumn();
    void shouldCompareCaseAsTheBoxSays();
    void shouldCompareIdentifiersByTheirEnding_data();
    void shouldCompareIdentifiersByTheirEnding();
    void shouldMatchEverythingWithAnEmptyText();
    void shouldFindNothingInAnEmptyModel();
    void shouldBeginWithTheFirstDocumentThatHasAHead();
    void shouldSearchAtAnyDepth();
    void shouldFindNothingInAColumnThatIsNotThere();
    void shouldSearchAnewOnlyWhenSomethingChanged();
    void shouldSearchAnewWhileNothingIsFound();
    void shouldEmptyTheMatchesWhenTheColumnChanges();
    void shouldKeepTheMatchesWhenTheColumnStays();
    void shouldKeepMatchesThroughEdits();
    void shouldSearchAnewWhenAllMatchesAreGone();
    void shouldEmptyTheMatchesWithAnotherModel();
    void shouldKeepTheMatchesWithTheSameModel();
    void shouldForgetAModelThatDies();
};

void TestReplaceFindSearch::shouldFindOnEveryLevelInPreOrder()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|man power|Manual"));
    QCOMPARE(model.m_searches, 1);
}

void TestReplaceFindSearch::shouldSearchTheChosenColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::newRow("title") << 0 << "MA"
                           << "Man|man power|Machine|Manual";
    QTest::newRow("uuid") << 1 << "-05}"
                          << "man power";
    QTest::newRow("showid") << 2 << "10"
                            << "Effect|Man|Machine|Other";
    QTest::newRow("pid") << 3 << "02}"
                         << "Training|man power";
}

void TestReplaceFindSearch::shouldSearchTheChosenColumn()
{
    QFETCH(int, column);
    QFETCH(QString, text);
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    for (int i = 0; i < column; ++i)
        QTest::keyClick(columnCombo(dialog), Qt::Key_Down);
    search(dialog, text);
    QTEST(titles(dialog.matches()), "found");
    for (const QModelIndex &match : dialog.matches())
        QCOMPARE(match.column(), column);
}

void TestReplaceFindSearch::shouldCompareCaseAsTheBoxSays()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    QTest::keyClick(dialog.findChild<QCheckBox *>(), Qt::Key_Space);
    search(dialog, QStringLiteral("Man"));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|Manual"));

    columnCombo(dialog)->setCurrentIndex(1);
    search(dialog, QStringLiteral("man-02}"));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man"));
}

void TestReplaceFindSearch::shouldCompareIdentifiersByTheirEnding_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("uuid") << 1;
    QTest::newRow("pid") << 3;
}

void TestReplaceFindSearch::shouldCompareIdentifiersByTheirEnding()
{
    QFETCH(int, column);
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    columnCombo(dialog)->setCurrentIndex(column);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    search(dialog, QStringLiteral("{head"));
    QVERIFY(user.isDone());
    QVERIFY(dialog.matches().isEmpty());
    search(dialog, QStringLiteral("HEAD-01}"));
    QCOMPARE(titles(dialog.matches()),
             column == 1 ? QStringLiteral("Effect") : QStringLiteral("Man|Machine"));
}

void TestReplaceFindSearch::shouldMatchEverythingWithAnEmptyText()
{
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.find();
    QCOMPARE(dialog.matches().size(), 7);
}

void TestReplaceFindSearch::shouldFindNothingInAnEmptyModel()
{
    QStandardItemModel model;
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    dialog.find();
    QVERIFY(user.isDone());
    QCOMPARE(message.text, QStringLiteral("Not found key word ."));
}

void TestReplaceFindSearch::shouldBeginWithTheFirstDocumentThatHasAHead()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    QVERIFY(model.loadJsonFish("{}"));
    TestSupport::loadDocument(model, QStringLiteral("Man[Manual]"));
    QVERIFY(model.loadJsonFish("{}"));
    TestSupport::loadDocument(model, QStringLiteral("Effect[man]"));
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|Manual|man"));
}

void TestReplaceFindSearch::shouldSearchAtAnyDepth()
{
    constexpr int depth = 100000;
    FishModel model;
    TreeItem *const head = TestSupport::addDocument(model, TestSupport::makeChain(depth));
    TreeItem *last = head;
    while (last->childCount() > 0)
        last = last->childAtIndex(0);
    last->setTitle(QStringLiteral("the very last"));
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("very last"));
    QCOMPARE(dialog.matches().size(), 1);
    QCOMPARE(model.getTreeItem(dialog.matches().first()), last);
}

void TestReplaceFindSearch::shouldFindNothingInAColumnThatIsNotThere()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("Effect")));
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    columnCombo(dialog)->setCurrentIndex(2);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    search(dialog, QStringLiteral("Effect"));
    QVERIFY(user.isDone());
    QVERIFY(dialog.matches().isEmpty());
}

void TestReplaceFindSearch::shouldSearchAnewOnlyWhenSomethingChanged()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    search(dialog, QStringLiteral("man"));
    QCOMPARE(model.m_searches, 1);
    dialog.findChild<QCheckBox *>()->setChecked(true);
    search(dialog, QStringLiteral("man"));
    QCOMPARE(model.m_searches, 2);
    search(dialog, QStringLiteral("Man"));
    QCOMPARE(model.m_searches, 3);
    search(dialog, QStringLiteral("Man"));
    QCOMPARE(model.m_searches, 3);
}

void TestReplaceFindSearch::shouldSearchAnewWhileNothingIsFound()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    for (int time = 1; time <= 2; ++time) {
        Message message;
        const ModalDriver<QMessageBox> user(keepMessage(message));
        search(dialog, QStringLiteral("Method"));
        QVERIFY(user.isDone());
        QCOMPARE(model.m_searches, time);
    }
    model.appendRow(new QStandardItem(QStringLiteral("Method")));
    search(dialog, QStringLiteral("Method"));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Method"));
}

void TestReplaceFindSearch::shouldEmptyTheMatchesWhenTheColumnChanges()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    QVERIFY(!dialog.matches().isEmpty());
    columnCombo(dialog)->setCurrentIndex(2);
    QVERIFY(dialog.matches().isEmpty());
    columnCombo(dialog)->setCurrentIndex(0);
    search(dialog, QStringLiteral("man"));
    QCOMPARE(model.m_searches, 2);
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|man power|Manual"));
}

void TestReplaceFindSearch::shouldKeepTheMatchesWhenTheColumnStays()
{
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    dialog.enableCtrl(0);
    QCOMPARE(dialog.matches().size(), 3);
}

void TestReplaceFindSearch::shouldKeepMatchesThroughEdits()
{
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    model.insertRow(0, row("Manner", "{new-08}", "120", ""));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|man power|Manual"));
    model.item(1)->removeRow(0);
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Manual"));

    replaceEdit(dialog)->setText(QStringLiteral("x"));
    click(dialog, "Replace");
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Manual"));
}

void TestReplaceFindSearch::shouldSearchAnewWhenAllMatchesAreGone()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("Manual"));
    model.removeRow(1);
    QVERIFY(dialog.matches().isEmpty());
    replaceEdit(dialog)->setText(QStringLiteral("x"));
    click(dialog, "Replace");

    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    search(dialog, QStringLiteral("Manual"));
    QVERIFY(user.isDone());
    QCOMPARE(model.m_searches, 2);
}

void TestReplaceFindSearch::shouldEmptyTheMatchesWithAnotherModel()
{
    QStandardItemModel first;
    fill(first);
    RecordingModel second;
    fill(second);
    ReplaceFindDialog dialog;
    dialog.setModel(&first);
    search(dialog, QStringLiteral("man"));
    dialog.setModel(&second);
    QVERIFY(dialog.matches().isEmpty());
    search(dialog, QStringLiteral("man"));
    QCOMPARE(second.m_searches, 1);
    QCOMPARE(dialog.matches().size(), 3);
    QCOMPARE(dialog.matches().first().model(), &second);
    dialog.setModel(nullptr);
    QVERIFY(dialog.matches().isEmpty());
}

void TestReplaceFindSearch::shouldKeepTheMatchesWithTheSameModel()
{
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    dialog.setModel(&model);
    QCOMPARE(dialog.matches().size(), 3);
}

void TestReplaceFindSearch::shouldForgetAModelThatDies()
{
    auto model = std::make_unique<QStandardItemModel>();
    fill(*model);
    ReplaceFindDialog dialog;
    dialog.setModel(model.get());
    search(dialog, QStringLiteral("man"));
    QCOMPARE(dialog.matches().size(), 3);
    model.reset();
    QVERIFY(dialog.matches().isEmpty());
    replaceEdit(dialog)->setText(QStringLiteral("x"));
    bool warned = false;
    const ModalDriver<QMessageBox> user([&](QMessageBox &box) {
        warned = true;
        box.accept();
    });
    search(dialog, QStringLiteral("man"));
    click(dialog, "Replace");
    click(dialog, "Replace All");
    QVERIFY(!warned);
}

FISHBONE_TEST(TestReplaceFindSearch)
#include "tst_replacefindsearch.moc"
