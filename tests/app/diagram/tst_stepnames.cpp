// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/stepnames.h>

#include <fishbone/undo/attributecommands.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QTreeWidget>

namespace {

/** The last step that the history panel lists. */
QString lastStep(const AppFixture &app)
{
    const auto *const list = app.widget<QTreeWidget>("history");
    const QTreeWidgetItem *const row = list->topLevelItem(list->topLevelItemCount() - 1);
    return (row->childCount() > 0 ? row->child(row->childCount() - 1) : row)->text(0);
}

void type(const char *text)
{
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    AppFixture::settle();
}

} // namespace

/** What was done to what. */
class TestStepNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldNameOneSubjectAndCountTheOthers();
    void shouldCutALongTitle();
    void shouldNameWhatWasInsertedByTheTitleThatWasTyped();
    void shouldNameWhatWasRenamedDeletedMovedAndMarked();
    void shouldSayInTheMenuWhatComesNext();
};

void TestStepNames::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_stepnames"));
}

void TestStepNames::shouldNameOneSubjectAndCountTheOthers()
{
    const QString name = QStringLiteral("Vote");
    QCOMPARE(StepNames::of(name, {}), name);
    QCOMPARE(StepNames::of(name, {QStringLiteral("100 %2")}), QStringLiteral("Vote “100 %2”"));
    QCOMPARE(StepNames::of(name, {QStringLiteral("A\nb"), QStringLiteral("B"), QString()}),
             QStringLiteral("Vote “A b” and 2 more"));
}

void TestStepNames::shouldCutALongTitle()
{
    const QString step = StepNames::of(QStringLiteral("Vote"), {QString(1000, u'x')});
    QVERIFY(step.size() < 60);
    QVERIFY(step.endsWith(QStringLiteral("xx…”")));
}

void TestStepNames::shouldNameWhatWasInsertedByTheTitleThatWasTyped()
{
    AppFixture app;
    app.select("Machines");
    app.window.editor()->view()->setFocus();
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Tab);
    AppFixture::settle();
    type("Pump worn");
    QCOMPARE(lastStep(app), QStringLiteral("Insert child subject “Pump worn”"));
    app.trigger("undo");
    QCOMPARE(lastStep(app), QStringLiteral("Insert child subject “Pump worn”"));
    app.trigger("redo");
    QVERIFY(app.subject("Pump worn"));
    QCOMPARE(lastStep(app), QStringLiteral("Insert child subject “Pump worn”"));
}

void TestStepNames::shouldNameWhatWasRenamedDeletedMovedAndMarked()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("rename");
    type("Tools");
    QCOMPARE(lastStep(app), QStringLiteral("Modify subject name “Tools”"));
    app.trigger("moveUp");
    QCOMPARE(lastStep(app), QStringLiteral("Move subjects “Tools”"));
    app.window.session()->select({app.find("Too few"), app.find("Too new")});
    AppFixture::settle();
    app.trigger("voteMore");
    QCOMPARE(lastStep(app), QStringLiteral("Vote “Too few” and 1 more"));
    app.trigger("delete");
    QCOMPARE(lastStep(app), QStringLiteral("Delete selecteds “Too few” and 1 more"));
}

void TestStepNames::shouldSayInTheMenuWhatComesNext()
{
    AppFixture app;
    QCOMPARE(app.action("undo")->text(), QStringLiteral("&Undo"));
    app.window.editor()->run(
        std::make_unique<ModifyName>(app.window.model(), app.find("Rust"), QStringLiteral("R&D")));
    AppFixture::settle();
    QCOMPARE(app.action("undo")->text(), QStringLiteral("&Undo: Modify subject name “R&&D”"));
    QCOMPARE(app.action("redo")->text(), QStringLiteral("&Redo"));
    app.trigger("undo");
    QCOMPARE(app.action("undo")->text(), QStringLiteral("&Undo"));
    QCOMPARE(app.action("redo")->text(), QStringLiteral("&Redo: Modify subject name “R&&D”"));
}

FISHBONE_TEST(TestStepNames)
#include "tst_stepnames.moc"
