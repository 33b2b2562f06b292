// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <tests/support/dialogchecks.h>
#include <tests/support/modaldriver.h>

#include <fishbone/dialogs/replacefinddialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

using TestSupport::buttonWithText;
using TestSupport::ModalDriver;

class TestFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldGoFromMatchToMatch();
    void shouldSearchTheCurrentTab();
    void shouldSayThatNothingWasFound();
    void shouldReplaceAsAStepThatCanBeUndone();
    void shouldReplaceInAllTitles();
    void shouldRespectTheCase();
    void shouldReplaceNothingButTitles();
};

namespace {

/// The window with its find dialog.
struct FinderFixture : AppFixture
{
    FinderFixture()
    {
        trigger("find");
        dialog = window.findChild<ReplaceFindDialog *>();
    }

    QLineEdit *field(int index) const { return dialog->findChildren<QLineEdit *>().value(index); }
    void search(const QString &text)
    {
        field(0)->setText(text);
        press("Find");
    }
    void press(const char *button)
    {
        buttonWithText(*dialog, QLatin1String(button))->click();
        settle();
    }

    ReplaceFindDialog *dialog = nullptr;
};

} // namespace

void TestFinder::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_finder"));
}

void TestFinder::shouldGoFromMatchToMatch()
{
    FinderFixture app;
    QVERIFY(app.dialog->isVisible());
    app.search(QStringLiteral("too"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too few")));
    QVERIFY(app.subject("Too few")->spear()->isVisible());
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("Match 1 of 2"));
    QTest::keyClick(app.field(0), Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new")));
    app.press("Find"); // and round again
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too few")));
    app.search(QStringLiteral("rust"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Rust")));
}

void TestFinder::shouldSearchTheCurrentTab()
{
    FinderFixture app;
    app.trigger("new");
    {
        const ModalDriver<QMessageBox> driver([](QMessageBox &box) { box.accept(); });
        app.search(QStringLiteral("Illness"));
        QVERIFY(driver.isDone()); // there is none in the new diagram
    }
    app.showTab(0);
    app.press("Find");
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
}

void TestFinder::shouldSayThatNothingWasFound()
{
    FinderFixture app;
    app.select("Machines");
    QString said;
    const ModalDriver<QMessageBox> driver([&said](QMessageBox &box) {
        said = box.text();
        box.accept();
    });
    app.search(QStringLiteral("nowhere"));
    QVERIFY(driver.isDone());
    QVERIFY(said.contains(QLatin1String("nowhere")));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
}

void TestFinder::shouldReplaceAsAStepThatCanBeUndone()
{
    FinderFixture app;
    app.search(QStringLiteral("Too"));
    app.field(1)->setText(QStringLiteral("Far too"));
    app.press("Replace");
    QVERIFY(app.text().contains(QLatin1String("People[Far too few[Illness],Too new]")));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new"))); // the next one
    app.trigger("undo");
    QVERIFY(app.text().contains(QLatin1String("People[Too few[Illness],Too new]")));
}

void TestFinder::shouldReplaceInAllTitles()
{
    FinderFixture app;
    app.field(0)->setText(QStringLiteral("too"));
    app.field(1)->setText(QStringLiteral("Very"));
    app.press("Replace All");
    QVERIFY(app.text().contains(QLatin1String("People[Very few[Illness],Very new]")));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("2 title(s) replaced"));
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 2);
}

void TestFinder::shouldRespectTheCase()
{
    FinderFixture app;
    app.dialog->findChild<QCheckBox *>()->setChecked(true);
    app.field(0)->setText(QStringLiteral("m"));
    app.field(1)->setText(QStringLiteral("X"));
    const ModalDriver<QMessageBox> driver([](QMessageBox &box) { box.accept(); });
    app.press("Replace All");
    QVERIFY(driver.isDone()); // there is no small m
    QVERIFY(!app.window.editor()->undoStack()->canUndo());

    app.field(0)->setText(QStringLiteral("M"));
    app.press("Replace All");
    QVERIFY(app.text().contains(QLatin1String("Xachines,Xaterial")));
}

void TestFinder::shouldReplaceNothingButTitles()
{
    FinderFixture app;
    app.subject("Machines")->setShowid(QStringLiteral("No. 7"));
    app.dialog->findChild<QComboBox *>()->setCurrentIndex(2);
    app.search(QStringLiteral("7"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    app.field(1)->setText(QStringLiteral("8"));
    app.press("Replace");
    app.press("Replace All");
    QCOMPARE(app.subject("Machines")->showid(), QStringLiteral("No. 7"));
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

QTEST_MAIN(TestFinder)
#include "tst_finder.moc"
