// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/taskstatusitem.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>

class TestDetailsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheSelectedSubject();
    void shouldShowNothingWithoutASelection();
    void shouldApplyWhatIsEntered();
    void shouldRevertWhatIsEntered();
    void shouldApplyWhenAnotherSubjectIsSelected();
    void shouldKeepWhatIsNotShownFully();
    void shouldForgetASubjectThatIsDeleted();
    void shouldOpenOnTheEditorsGestures_data();
    void shouldOpenOnTheEditorsGestures();
};

void TestDetailsPanel::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_detailspanel"));
}

void TestDetailsPanel::shouldShowTheSelectedSubject()
{
    AppFixture app;
    TreeItem *const machines = app.subject("Machines");
    machines->setDetail(QStringLiteral("Two of them"));
    machines->setStatus(tsRunning);
    machines->setProgress(40);
    machines->setPriority(2);
    machines->setManagerName(QStringLiteral("Li"));
    machines->setFollowers(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    app.select("Machines");

    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Machines"));
    QCOMPARE(app.widget<QPlainTextEdit>("detailsText")->toPlainText(),
             QStringLiteral("Two of them"));
    QCOMPARE(app.widget<QComboBox>("detailsStatus")->currentData().toInt(), int(tsRunning));
    QCOMPARE(app.widget<QSpinBox>("detailsProgress")->value(), 40);
    QCOMPARE(app.widget<QSpinBox>("detailsPriority")->value(), 2);
    QCOMPARE(app.widget<QLineEdit>("detailsManager")->text(), QStringLiteral("Li"));
    QCOMPARE(app.widget<QLineEdit>("detailsFollowers")->text(), QStringLiteral("a, b"));
    QVERIFY(!app.widget<QPushButton>("detailsApply")->isEnabled());
    QVERIFY(!app.document()->modified());
}

void TestDetailsPanel::shouldShowNothingWithoutASelection()
{
    AppFixture app;
    app.select("Machines");
    app.window.editor()->scene()->clearSelection();
    AppFixture::settle();
    QVERIFY(app.widget<QLineEdit>("detailsTitle")->text().isEmpty());
    QVERIFY(!app.widget<QLineEdit>("detailsTitle")->isEnabled());
}

void TestDetailsPanel::shouldApplyWhatIsEntered()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Robots"));
    app.widget<QPlainTextEdit>("detailsText")->setPlainText(QStringLiteral("Old"));
    auto *const status = app.widget<QComboBox>("detailsStatus");
    status->setCurrentIndex(status->findData(int(tsRunning)));
    app.widget<QSpinBox>("detailsProgress")->setValue(70);
    app.widget<QSpinBox>("detailsPriority")->setValue(3);
    app.widget<QLineEdit>("detailsManager")->setText(QStringLiteral("Ann"));
    app.widget<QLineEdit>("detailsFollowers")->setText(QStringLiteral("x,, y "));
    const DetailsPanel *const panel = app.window.tabs()->current()->details();
    panel->findChild<QCheckBox *>()->setChecked(true);
    panel->findChild<QDateEdit *>()->setDate(QDate(2026, 3, 4));
    QVERIFY(app.widget<QPushButton>("detailsApply")->isEnabled());
    QVERIFY(app.find("Machines").isValid()); // not before it is applied
    app.widget<QPushButton>("detailsApply")->click();
    AppFixture::settle();

    const TreeItem *const robots = app.subject("Robots");
    QVERIFY(robots);
    QCOMPARE(robots->uuid(), QStringLiteral("{e}"));
    QCOMPARE(robots->detail(), QStringLiteral("Old"));
    QCOMPARE(robots->status(), int(tsRunning));
    QCOMPARE(robots->progress(), 70);
    QCOMPARE(robots->priority(), 3);
    QCOMPARE(robots->managerName(), QStringLiteral("Ann"));
    QCOMPARE(robots->followers(), QStringList({QStringLiteral("x"), QStringLiteral("y")}));
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(robots->planEndDate()).date(), QDate(2026, 3, 4));
    QCOMPARE(robots->spear()->text(), QStringLiteral("Robots"));
    QCOMPARE(robots->spear()->statusItem()->progress(), 70);
    QVERIFY(app.window.isWindowModified());
    QVERIFY(!app.widget<QPushButton>("detailsApply")->isEnabled());
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestDetailsPanel::shouldRevertWhatIsEntered()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Robots"));
    app.widget<QPushButton>("detailsRevert")->click();
    AppFixture::settle();
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Machines"));
    QVERIFY(!app.widget<QPushButton>("detailsRevert")->isEnabled());
    QVERIFY(!app.document()->modified());
}

void TestDetailsPanel::shouldApplyWhenAnotherSubjectIsSelected()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Robots"));
    app.select("Material");
    QVERIFY(app.find("Robots").isValid());
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Material"));
}

void TestDetailsPanel::shouldKeepWhatIsNotShownFully()
{
    AppFixture app;
    TreeItem *const machines = app.subject("Machines");
    const QDateTime end(QDate(2026, 3, 4), QTime(15, 30));
    machines->setStatus(99);
    machines->setPlanEndDate(end.toMSecsSinceEpoch());
    machines->setFollowers(QStringList(QStringLiteral("Li, Wei")));
    app.select("Machines");
    app.widget<QLineEdit>("detailsManager")->setText(QStringLiteral("Ann"));
    app.widget<QPushButton>("detailsApply")->click();
    QCOMPARE(machines->managerName(), QStringLiteral("Ann"));
    QCOMPARE(machines->status(), 99);
    QCOMPARE(machines->planEndDate(), end.toMSecsSinceEpoch());
    QCOMPARE(machines->followers(), QStringList(QStringLiteral("Li, Wei")));
}

void TestDetailsPanel::shouldForgetASubjectThatIsDeleted()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Robots"));
    app.trigger("delete");
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Material"));
    QVERIFY(!app.find("Robots").isValid());
}

void TestDetailsPanel::shouldOpenOnTheEditorsGestures_data()
{
    QTest::addColumn<int>("gesture");

    QTest::newRow("double click") << 0;
    QTest::newRow("open a task") << 1;
    QTest::newRow("edit a task") << 2;
    QTest::newRow("action") << 3;
    QTest::newRow("double click in the tree") << 4;
}

void TestDetailsPanel::shouldOpenOnTheEditorsGestures()
{
    QFETCH(int, gesture);
    AppFixture app;
    auto *const dock = app.widget<QDockWidget>("detailsDock");
    dock->hide();
    FishEditor *const editor = app.window.editor();
    app.select("Machines");
    if (gesture == 0) {
        const QPoint at =
            editor->view()->mapFromScene(app.subject("Machines")->spear()->line().center());
        QTest::mouseDClick(editor->view()->viewport(), Qt::LeftButton, {}, at);
    } else if (gesture == 1) {
        Q_EMIT editor->oneTaskClicked(QStringLiteral("Machines"), QStringLiteral("{e}"));
    } else if (gesture == 2) {
        Q_EMIT editor->editTaskDetail(app.find("Machines"));
    } else if (gesture == 3) {
        app.trigger("details");
    } else {
        Q_EMIT app.window.tree()->view()->doubleClicked(app.window.tree()->view()->currentIndex());
    }
    AppFixture::settle();
    QVERIFY(dock->isVisible());
    QVERIFY(app.widget<QLineEdit>("detailsTitle")->hasFocus());
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Machines"));
}

QTEST_MAIN(TestDetailsPanel)
#include "tst_detailspanel.moc"
