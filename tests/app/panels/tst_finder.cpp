// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/modaldriver.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/items/textitem.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTreeWidget>

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
    void shouldAnnounceEachOfManyReplacementsOnce();
    void shouldReplaceNothingOnceCancelled();
    void shouldRespectTheCase();
    void shouldReplaceNumbersToo();
    void shouldReplaceNoIdentities();
    void shouldListWhatWasFound();
    void shouldGoToAListedHit();
    void shouldPreviewWhatWillChange();
    void shouldReplaceOnlyWhatIsChecked();
    void shouldReplaceThePlainTitleOfAHead();
    void shouldFollowSubjectsThatGo();
    void shouldRestoreTheLookOnEscape();
    void shouldStayWhereAChosenHitIs();
    void shouldFindAsOneTypes();
    void shouldNeverCoverTheHit_data();
    void shouldNeverCoverTheHit();
    void shouldNameEveryControl();
};

namespace {

/** The window with its find dialog. */
struct FinderFixture : AppFixture
{
    FinderFixture()
    {
        trigger("find");
        dialog = window.findChild<ReplaceFindDialog *>();
    }

    /** Opens a diagram of @p count subjects "Cause" below its head. */
    void openCauses(int count)
    {
        QByteArray causes;
        for (int i = 0; i < count; ++i)
            causes += QByteArray(i > 0 ? "," : "") + R"({"title": "Cause"})";
        const QString file = path(QStringLiteral("many.json"));
        writeFile(file, R"({"title": "Many", "children": [)" + causes + "]}");
        window.open({file});
        settle();
    }

    void search(const QString &text)
    {
        dialog->searchField()->setText(text);
        findNext();
    }
    void findNext() const { press(dialog->findButton()); }
    void replace() const { press(dialog->replaceButton()); }
    void replaceAll() const { press(dialog->replaceAllButton()); }
    static void press(QPushButton *button)
    {
        button->click();
        settle();
    }

    QTreeWidget *hits() const { return dialog->findChild<QTreeWidget *>(QStringLiteral("hits")); }
    /** The listed hits: "[x]" for a checked box, then the columns. */
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < hits()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *const item = hits()->topLevelItem(row);
            const QVariant box = item->data(0, Qt::CheckStateRole);
            const QString mark = !box.isValid()               ? QString()
                                 : box.toInt() == Qt::Checked ? QStringLiteral("[x]")
                                                              : QStringLiteral("[ ]");
            texts.append(mark + item->text(0) + QLatin1Char('|') + item->text(1) +
                         QLatin1Char('|') + item->text(2));
        }
        return texts;
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
    QTest::keyClick(app.dialog->searchField(), Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new")));
    app.findNext(); // and round again
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
    app.findNext();
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
    app.dialog->replacementField()->setText(QStringLiteral("Far too"));
    app.replace();
    QVERIFY(app.text().contains(QLatin1String("People[Far too few[Illness],Too new]")));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new"))); // the next one
    app.trigger("undo");
    QVERIFY(app.text().contains(QLatin1String("People[Too few[Illness],Too new]")));
}

void TestFinder::shouldReplaceInAllTitles()
{
    FinderFixture app;
    app.dialog->searchField()->setText(QStringLiteral("too"));
    app.dialog->replacementField()->setText(QStringLiteral("Very"));
    app.replaceAll();
    QVERIFY(app.text().contains(QLatin1String("People[Very few[Illness],Very new]")));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("2 text(s) replaced"));
    QCOMPARE(app.window.editor()->undoStack()->commandNames(),
             QStringList(QStringLiteral("Replace 2 text(s)")));
    app.select("Very new");
    QCOMPARE(app.subject("Very new")->spear()->text(), QStringLiteral("Very new"));
    app.trigger("undo");
    QVERIFY(app.text().contains(QLatin1String("People[Too few[Illness],Too new]")));
    app.trigger("redo");
    QVERIFY(app.text().contains(QLatin1String("People[Very few[Illness],Very new]")));
}

void TestFinder::shouldAnnounceEachOfManyReplacementsOnce()
{
    // What follows a change is done once for all of them, whatever their number.
    constexpr int count = 2000;
    FinderFixture app;
    app.openCauses(count);
    app.search(QStringLiteral("Cause"));
    app.dialog->replacementField()->setText(QStringLiteral("Reason"));
    AppFixture::settle();
    const QSignalSpy changes(app.window.model(), &QAbstractItemModel::dataChanged);
    const QSignalSpy states(app.window.session(), &DiagramSession::stateChanged);
    const int steps = app.window.editor()->undoStack()->count();
    app.replaceAll();
    QCOMPARE(changes.count(), count);
    QVERIFY2(states.count() <= 2, qPrintable(QString::number(states.count())));
    QCOMPARE(app.window.editor()->undoStack()->count(), steps + 1);
    QCOMPARE(app.window.model()->searchModelIndexes(QStringLiteral("Reason")).size(), count);
}

void TestFinder::shouldReplaceNothingOnceCancelled()
{
    QSettings().setValue(QStringLiteral("progressAfterMilliseconds"), 0);
    constexpr int count = 8000; // which take longer than a look at the progress
    FinderFixture app;
    app.openCauses(count);
    app.search(QStringLiteral("Cause"));
    app.dialog->replacementField()->setText(QStringLiteral("Reason"));
    AppFixture::settle();
    const int steps = app.window.editor()->undoStack()->count();
    int done = -1;
    int whole = 0;
    {
        const ModalDriver<QProgressDialog> user(
            [&](QProgressDialog &dialog) {
                done = dialog.value();
                whole = dialog.maximum();
                QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
            },
            60000);
        app.replaceAll();
        QVERIFY(user.isDone());
    }
    QSettings().remove(QStringLiteral("progressAfterMilliseconds"));
    QVERIFY2(done >= 0 && done < whole, qPrintable(QString::number(done)));
    QCOMPARE(whole, count);
    QCOMPARE(app.window.editor()->undoStack()->count(), steps);
    QVERIFY(!app.document()->modified());
    QVERIFY(app.window.model()->searchModelIndexes(QStringLiteral("Reason")).isEmpty());
    QCOMPARE(app.hits()->topLevelItemCount(), count); // to be replaced all the same
}

void TestFinder::shouldRespectTheCase()
{
    FinderFixture app;
    app.dialog->caseBox()->setChecked(true);
    app.dialog->searchField()->setText(QStringLiteral("m"));
    app.dialog->replacementField()->setText(QStringLiteral("X"));
    const ModalDriver<QMessageBox> driver([](QMessageBox &box) { box.accept(); });
    app.replaceAll();
    QVERIFY(driver.isDone()); // there is no small m
    QVERIFY(!app.window.editor()->undoStack()->canUndo());

    app.dialog->searchField()->setText(QStringLiteral("M"));
    app.replaceAll();
    QVERIFY(app.text().contains(QLatin1String("Xachines,Xaterial")));
}

void TestFinder::shouldReplaceNumbersToo()
{
    FinderFixture app;
    app.subject("Machines")->setShowid(QStringLiteral("No. 7"));
    app.dialog->columnBox()->setCurrentIndex(2);
    app.search(QStringLiteral("7"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    app.dialog->replacementField()->setText(QStringLiteral("8"));
    app.replace();
    QCOMPARE(app.subject("Machines")->showid(), QStringLiteral("No. 8"));
    app.trigger("undo");
    QCOMPARE(app.subject("Machines")->showid(), QStringLiteral("No. 7"));
    QVERIFY(app.subject("Machines"));
}

void TestFinder::shouldReplaceNoIdentities()
{
    FinderFixture app;
    app.dialog->columnBox()->setCurrentIndex(1);
    app.dialog->replacementField()->setText(QStringLiteral("x"));
    app.search(QStringLiteral("e}"));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QCOMPARE(app.rows(), QStringList(QStringLiteral("{e}||Late")));
    QVERIFY(!app.dialog->replaceButton()->isEnabled());
    QVERIFY(!app.dialog->replaceAllButton()->isEnabled());
}

void TestFinder::shouldListWhatWasFound()
{
    FinderFixture app;
    app.search(QStringLiteral("too"));
    QCOMPARE(app.rows(), QStringList({QStringLiteral("[x]Too few| few|Late › People"),
                                      QStringLiteral("[x]Too new| new|Late › People")}));
    app.dialog->searchField()->setText(QStringLiteral("to")); // not searched for yet
    QCOMPARE(app.rows(), QStringList());
    app.search(QStringLiteral("illness"));
    QCOMPARE(app.rows(), QStringList(QStringLiteral("[x]Illness||Late › People › Too few")));
}

void TestFinder::shouldGoToAListedHit()
{
    FinderFixture app;
    app.search(QStringLiteral("too"));
    QCOMPARE(app.hits()->currentItem(), app.hits()->topLevelItem(0));
    app.hits()->setFocus();
    QTest::keyClick(app.hits(), Qt::Key_Down);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new")));
    app.findNext(); // goes on from there
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too few")));
    QCOMPARE(app.hits()->currentItem(), app.hits()->topLevelItem(0));
}

void TestFinder::shouldPreviewWhatWillChange()
{
    FinderFixture app;
    app.search(QStringLiteral("ma"));
    app.dialog->replacementField()->setText(QStringLiteral("X"));
    QCOMPARE(app.rows(), QStringList({QStringLiteral("[x]Machines|Xchines|Late"),
                                      QStringLiteral("[x]Material|Xterial|Late")}));
    app.dialog->replacementField()->setText(QStringLiteral("ma"));
    QCOMPARE(app.rows(), QStringList({QStringLiteral("[x]Machines|machines|Late"),
                                      QStringLiteral("[x]Material|material|Late")}));
    app.dialog->caseBox()->setChecked(true);
    app.dialog->replacementField()->setText(QStringLiteral("Ma"));
    app.search(QStringLiteral("Ma")); // nothing changes
    QCOMPARE(app.rows(),
             QStringList({QStringLiteral("Machines||Late"), QStringLiteral("Material||Late")}));
    QVERIFY(!app.document()->modified());
}

void TestFinder::shouldReplaceOnlyWhatIsChecked()
{
    FinderFixture app;
    app.search(QStringLiteral("m"));
    app.dialog->replacementField()->setText(QStringLiteral("X"));
    QCOMPARE(app.hits()->topLevelItemCount(), 2);
    app.hits()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    app.replaceAll();
    QVERIFY(app.text().endsWith(QLatin1String("Machines,Xaterial[Rust]]")));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("1 text(s) replaced"));
    app.trigger("undo");
    QVERIFY(app.text().endsWith(QLatin1String("Machines,Material[Rust]]")));
}

void TestFinder::shouldReplaceThePlainTitleOfAHead()
{
    FinderFixture app;
    app.window.model()->setModelType(FISH_MODEL_NORMAL); // the counts stand behind the title
    app.search(QStringLiteral("Late"));
    app.dialog->replacementField()->setText(QStringLiteral("Early"));
    QCOMPARE(app.rows(), QStringList(QStringLiteral("[x]Late|Early|")));
    app.replaceAll();
    QVERIFY(app.text().startsWith(QLatin1String("Early[People")));
    app.trigger("undo");
    QVERIFY(app.text().startsWith(QLatin1String("Late[People")));
}

void TestFinder::shouldFollowSubjectsThatGo()
{
    FinderFixture app;
    app.dialog->replacementField()->setText(QStringLiteral("Very"));
    app.search(QStringLiteral("too"));
    app.window.editor()->deleteItem(app.find("Too few"));
    AppFixture::settle();
    app.replaceAll();
    QVERIFY(app.text().contains(QLatin1String("People[Very new]")));
}

void TestFinder::shouldRestoreTheLookOnEscape()
{
    AppFixture plain;
    plain.select("Rust");
    plain.select("Machines");
    plain.trigger("find");
    auto *const dialog = plain.window.findChild<ReplaceFindDialog *>();
    QVERIFY(plain.subject("Material")->spear()->isExpand());
    QVERIFY(!plain.subject("People")->spear()->isExpand());
    dialog->searchField()->setText(QStringLiteral("Illness"));
    dialog->findButton()->click();
    AppFixture::settle();
    QVERIFY(plain.subject("Illness")->spear()->isVisible());

    QTest::keyClick(dialog->searchField(), Qt::Key_Escape);
    AppFixture::settle();
    QVERIFY(!dialog->isVisible());
    QVERIFY(plain.subject("Material")->spear()->isExpand());
    QVERIFY(!plain.subject("People")->spear()->isExpand());
    QVERIFY(!plain.subject("Illness")->spear()->isVisible());
    QCOMPARE(plain.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QVERIFY(!plain.document()->modified());
}

void TestFinder::shouldStayWhereAChosenHitIs()
{
    FinderFixture app;
    app.search(QStringLiteral("Illness"));
    app.hits()->setFocus();
    QTest::keyClick(app.hits(), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(!app.dialog->isVisible());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
}

void TestFinder::shouldFindAsOneTypes()
{
    FinderFixture app;
    QLineEdit *const field = app.dialog->searchField();
    QTest::keyClicks(field, QStringLiteral("ill"));
    QTRY_COMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QCOMPARE(app.rows(), QStringList(QStringLiteral("[x]Illness|ness|Late › People › Too few")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(app.dialog->isVisible());
    QTest::keyClicks(field, QStringLiteral("x")); // nobody is interrupted by a warning
    QTRY_COMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("No match"));
    QCOMPARE(app.rows(), QStringList());
    field->clear();
    QTest::keyClicks(field, QStringLiteral("too"));
    QTRY_COMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too few")));
    QTest::keyClick(field, Qt::Key_Return); // goes on from there
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new")));
}

void TestFinder::shouldNeverCoverTheHit_data()
{
    QTest::addColumn<QString>("title");
    for (const char *title : {"Late", "People", "Too new", "Illness", "Machines", "Material"})
        QTest::newRow(title) << QString::fromLatin1(title);
}

void TestFinder::shouldNeverCoverTheHit()
{
    QFETCH(QString, title);
    FinderFixture app;
    app.window.resize(700, 560);
    const QWidget *const viewport = app.window.editor()->view()->viewport();
    // Right where the drawing is.
    app.dialog->move(viewport->mapToGlobal(QPoint(0, 0)));
    AppFixture::settle();
    app.search(title);
    QCOMPARE(app.selectedInDrawing(), QStringList(title));
    const SpearItem *const spear = app.subject(qPrintable(title))->spear();
    const GraphicsView &view = *app.window.editor()->view();
    const QRect shown = view.mapFromScene(spear->textItem()->sceneBoundingRect()).boundingRect();
    const QRect hit(viewport->mapToGlobal(shown.topLeft()), shown.size());
    QVERIFY(viewport->rect().intersects(shown));
    QVERIFY(!app.dialog->frameGeometry().intersects(hit));
    QVERIFY(app.dialog->screen()->availableGeometry().contains(app.dialog->frameGeometry()));
}

void TestFinder::shouldNameEveryControl()
{
    FinderFixture app;
    QCOMPARE(TestSupport::namelessControls(*app.dialog), QStringList());
}

FISHBONE_TEST(TestFinder)
#include "tst_finder.moc"
