// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/actionlist.h>
#include <app/panels/actionspanel.h>
#include <app/panels/rankedlist.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/modaldriver.h>

#include <QComboBox>
#include <QDateEdit>
#include <QDateTime>
#include <QDockWidget>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QStandardPaths>
#include <QTabBar>
#include <QToolButton>

using TestSupport::ModalDriver;

namespace {

QDate days(int later)
{
    return QDate::currentDate().addDays(later);
}

QString shortDay(int later)
{
    return QLocale().toString(days(later), QLocale::ShortFormat);
}

/** The window with the panel open: Ann has "Rust" (overdue, under way) and "Too new" (next week),
 * Bob "Machines" (waiting); "Illness" has a date alone. */
class ActionsFixture : public AppFixture
{
public:
    ActionsFixture()
    {
        give("Rust", "Ann", -2, tsRunning);
        give("Too new", "Ann", 7, -1);
        give("Machines", "Bob", 0, tsWaitting);
        give("Illness", "", 3, -1);
        auto *const dock = window.findChild<QDockWidget *>(QStringLiteral("actionsDock"));
        dock->toggleViewAction()->trigger();
        settle();
    }

    void give(const char *title, const char *person, int later, int status) const
    {
        TreeItem &item = *subject(title);
        item.setManagerName(QLatin1String(person));
        item.setPlanEndDate(QDateTime(days(later), QTime(12, 0)).toMSecsSinceEpoch());
        item.setStatus(status);
    }

    ActionsPanel *panel() const { return window.findChild<ActionsPanel *>(); }
    ActionList *list() const { return window.findChild<ActionList *>(); }

    /** The rows with their cells, those of a group behind its name. */
    QStringList rows() const { return rowsOf(*list()); }
    static QStringList rowsOf(const QTreeWidget &list)
    {
        QStringList rows;
        for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&list)); *it; ++it) {
            QStringList cells;
            for (int column = 0; column < list.columnCount(); ++column)
                cells.append((*it)->text(column));
            while (!cells.isEmpty() && cells.constLast().isEmpty())
                cells.removeLast();
            rows.append((*it)->parent() ? QLatin1String("  ") + cells.join(QLatin1Char('|'))
                                        : cells.join(QLatin1Char('|')));
        }
        return rows;
    }

    /** The titles of the rows alone. */
    QString titles() const
    {
        QStringList all;
        const QStringList listed = rows();
        for (const QString &row : listed)
            all.append(row.section(QLatin1Char('|'), 0, 0));
        return all.join(QLatin1Char(','));
    }

    QTreeWidgetItem *row(const char *title) const
    {
        return list()
            ->findItems(QLatin1String(title), Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }

    /** Double-clicks the cell of @p title in @p column; what edits it. */
    template <typename Field>
    Field *edit(const char *title, int column) const
    {
        QTreeWidgetItem *const item = row(title);
        list()->scrollToItem(item);
        const QModelIndex index =
            list()->model()->index(0, column).isValid()
                ? list()->indexAt(list()->visualItemRect(item).center()).siblingAtColumn(column)
                : QModelIndex();
        const QPoint place = list()->visualRect(index).center();
        QWidget *const viewport = list()->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, place);
        settle();
        return viewport->findChild<Field *>();
    }

    void group(Qt::Key key, int times) const
    {
        auto *const groups = panel()->findChild<QComboBox *>(QStringLiteral("actionGroups"));
        groups->setFocus();
        for (int i = 0; i < times; ++i)
            QTest::keyClick(groups, key);
        settle();
    }

    void clickHeading(int column) const
    {
        QHeaderView *const header = list()->header();
        QTest::mouseClick(
            header->viewport(), Qt::LeftButton, Qt::NoModifier,
            QPoint(header->sectionViewportPosition(column) + 20, header->height() / 2));
        settle();
    }

    QStringList steps() const { return window.editor()->undoStack()->commandNames(); }
};

} // namespace

/** The panel that lists who is to do what, and which causes come first. */
class TestActionsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldListByPersonWhatIsToBeDone();
    void shouldMarkWhatIsOverdue();
    void shouldGroupByStatusOrNotAtAll();
    void shouldSortByAnyColumn();
    void shouldEditInPlaceInOneStepEach();
    void shouldLeaveACellAsItWasOnEscape();
    void shouldLeadToTheBone();
    void shouldFollowEditsAndTabs();
    void shouldKeepItsPlaceWhenItChanges();
    void shouldWriteTheActionsToAFile_data();
    void shouldWriteTheActionsToAFile();
    void shouldRankTheCausesWithBars();
    void shouldNameEveryControl();
};

void TestActionsPanel::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_actionspanel"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestActionsPanel::shouldListByPersonWhatIsToBeDone()
{
    const ActionsFixture app;
    QCOMPARE(app.rows(),
             QStringList(
                 {QStringLiteral("Ann"),
                  QStringLiteral("  Rust|Ann|%1, overdue|under way").arg(shortDay(-2)),
                  QStringLiteral("  Too new|Ann|%1").arg(shortDay(7)), QStringLiteral("Bob"),
                  QStringLiteral("  Machines|Bob|%1|waiting").arg(shortDay(0)),
                  QStringLiteral("Nobody yet"), QStringLiteral("  Illness||%1").arg(shortDay(3))}));
    if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty())
        app.window.findChild<QWidget *>(QStringLiteral("actionsDock"))
            ->window()
            ->grab()
            .save(QString::fromLocal8Bit(folder) + QStringLiteral("/actions.png"));
}

void TestActionsPanel::shouldMarkWhatIsOverdue()
{
    const ActionsFixture app;
    const QColor urgent = app.row("Rust")->foreground(ActionList::End).color();
    QVERIFY(urgent.red() > urgent.green() + 100);
    QCOMPARE(app.row("Machines")->foreground(ActionList::End).style(), Qt::NoBrush);
}

void TestActionsPanel::shouldGroupByStatusOrNotAtAll()
{
    const ActionsFixture app;
    app.group(Qt::Key_Down, 1);
    QCOMPARE(app.titles(), QStringLiteral("under way,  Rust,No status,  Too new,  Illness,"
                                          "waiting,  Machines"));
    app.group(Qt::Key_Up, 2);
    QCOMPARE(app.titles(), QStringLiteral("Rust,Too new,Machines,Illness"));
}

void TestActionsPanel::shouldSortByAnyColumn()
{
    const ActionsFixture app;
    app.group(Qt::Key_Up, 1);
    app.clickHeading(ActionList::Title);
    QCOMPARE(app.titles(), QStringLiteral("Illness,Machines,Rust,Too new"));
    app.clickHeading(ActionList::Title); // the other way round
    QCOMPARE(app.titles(), QStringLiteral("Too new,Rust,Machines,Illness"));
    app.clickHeading(ActionList::Person);
    QCOMPARE(app.titles(), QStringLiteral("Illness,Rust,Too new,Machines"));
    app.clickHeading(ActionList::End);
    QCOMPARE(app.titles(), QStringLiteral("Rust,Machines,Illness,Too new"));
    app.clickHeading(ActionList::Status);
    QCOMPARE(app.titles(), QStringLiteral("Too new,Illness,Rust,Machines"));
}

void TestActionsPanel::shouldEditInPlaceInOneStepEach()
{
    ActionsFixture app;
    auto *const person = app.edit<QLineEdit>("Machines", ActionList::Person);
    QVERIFY(person);
    person->selectAll();
    QTest::keyClicks(person, QStringLiteral("ann"));
    QTest::keyClick(person, Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(app.subject("Machines")->managerName(), QStringLiteral("Ann")); // as she is known
    QCOMPARE(app.titles(), QStringLiteral("Ann,  Rust,  Machines,  Too new,Nobody yet,  Illness"));

    auto *const status = app.edit<QComboBox>("Rust", ActionList::Status);
    QVERIFY(status);
    status->setCurrentIndex(status->findText(QStringLiteral("finished")));
    QTest::keyClick(status, Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(app.subject("Rust")->status(), int(tsFinish));
    QCOMPARE(app.row("Rust")->text(ActionList::End), shortDay(-2)); // done, so not overdue

    auto *const date = app.edit<QDateEdit>("Too new", ActionList::End);
    QVERIFY(date);
    date->setDate(days(9));
    QTest::keyClick(date, Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(app.subject("Too new")->planEndDate()).date(), days(9));

    auto *const title = app.edit<QLineEdit>("Illness", ActionList::Title);
    QVERIFY(title);
    title->selectAll();
    QTest::keyClicks(title, QStringLiteral("Flu"));
    QTest::keyClick(title, Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.text().contains(QLatin1String("Too few[Flu]")));

    QCOMPARE(
        app.steps(),
        QStringList({QStringLiteral("Change who is responsible"), QStringLiteral("Change status"),
                     QStringLiteral("Change planned end"), QStringLiteral("Rename")}));
    for (int i = 0; i < 4; ++i)
        app.trigger("undo");
    QCOMPARE(app.rows(), ActionsFixture().rows());
}

void TestActionsPanel::shouldLeaveACellAsItWasOnEscape()
{
    ActionsFixture app;
    auto *const person = app.edit<QLineEdit>("Machines", ActionList::Person);
    QVERIFY(person);
    QTest::keyClicks(person, QStringLiteral("Zoe"));
    QTest::keyClick(person, Qt::Key_Escape);
    AppFixture::settle();
    auto *const same = app.edit<QLineEdit>("Machines", ActionList::Person);
    QVERIFY(same);
    QTest::keyClick(same, Qt::Key_Return); // nothing was changed
    AppFixture::settle();
    QCOMPARE(app.subject("Machines")->managerName(), QStringLiteral("Bob"));
    QCOMPARE(app.steps(), QStringList());
    QVERIFY(!app.document()->modified());
}

void TestActionsPanel::shouldLeadToTheBone()
{
    const ActionsFixture app;
    QVERIFY(!app.subject("Illness")->spear() || !app.subject("Illness")->spear()->isVisible());
    app.list()->setFocus();
    app.list()->setCurrentItem(app.row("Machines"));
    QTest::keyClick(app.list(), Qt::Key_Down); // the group
    QTest::keyClick(app.list(), Qt::Key_Down);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(app.list()->hasFocus());
}

void TestActionsPanel::shouldFollowEditsAndTabs()
{
    ActionsFixture app;
    app.select("Rust");
    app.trigger("delete");
    QCOMPARE(app.titles(), QStringLiteral("Ann,  Too new,Bob,  Machines,Nobody yet,  Illness"));
    app.trigger("undo");
    QCOMPARE(app.titles(),
             QStringLiteral("Ann,  Rust,  Too new,Bob,  Machines,Nobody yet,  Illness"));
    app.trigger("new");
    QCOMPARE(app.titles(), QString());
    app.showTab(0);
    QVERIFY(app.titles().startsWith(QLatin1String("Ann,  Rust")));
    app.trigger("close");
    QVERIFY(!app.titles().contains(QLatin1String("Rust")));
}

void TestActionsPanel::shouldKeepItsPlaceWhenItChanges()
{
    ActionsFixture app;
    app.list()->setCurrentItem(app.row("Machines"), ActionList::Person);
    app.row("Rust")->parent()->setExpanded(false);
    AppFixture::settle();
    app.trigger("statusFinished"); // of the machines
    QCOMPARE(app.list()->currentItem(), app.row("Machines"));
    QCOMPARE(app.list()->currentColumn(), int(ActionList::Person));
    QCOMPARE(app.row("Machines")->text(ActionList::Status), QStringLiteral("finished"));
    QVERIFY(!app.row("Rust")->parent()->isExpanded());
    QVERIFY(app.row("Machines")->parent()->isExpanded());
}

void TestActionsPanel::shouldWriteTheActionsToAFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("csv") << QStringLiteral("late-actions.csv")
                         << QByteArray("Rust,Material,Ann,%1,under way,0,yes");
    QTest::newRow("markdown") << QStringLiteral("late.md") << QByteArray("# Late\n");
}

void TestActionsPanel::shouldWriteTheActionsToAFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    content.replace("%1", days(-2).toString(Qt::ISODate).toLatin1());
    const ActionsFixture app;
    QString proposed;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        auto *const field = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        proposed = dialog.directory().filePath(field->text());
        field->setText(app.path(name));
        QTest::keyClick(field, Qt::Key_Return);
    });
    app.panel()->findChild<QToolButton *>(QStringLiteral("actionsToFile"))->click();
    QVERIFY(driver.isDone());
    QCOMPARE(QFileInfo(proposed).fileName(), QStringLiteral("late-actions.csv"));
    QCOMPARE(QFileInfo(proposed).absolutePath(), QFileInfo(app.path()).absolutePath());
    const QByteArray written = AppFixture::contentOf(app.path(name));
    QVERIFY2(written.contains(content), written.constData());
    QVERIFY(written.contains("Illness"));
}

void TestActionsPanel::shouldRankTheCausesWithBars()
{
    ActionsFixture app;
    SubjectMarks::setVerdict(*app.subject("Rust"), Verdict::RootCause);
    SubjectMarks::setVotes(*app.subject("Machines"), 1);
    SubjectMarks::setVotes(*app.subject("Too new"), 4);
    auto *const ranked = app.window.findChild<RankedList *>();
    app.panel()->tabBar()->setFocus();
    QTest::keyClick(app.panel()->tabBar(), Qt::Key_Right);
    AppFixture::settle();
    QVERIFY(ranked->isVisible());
    QCOMPARE(ActionsFixture::rowsOf(*ranked),
             QStringList({QStringLiteral("|Rust|root cause|Material"),
                          QStringLiteral("4|Too new||People"), QStringLiteral("1|Machines")}));
    // The bar of the most is four times as long.
    const QImage image = ranked->viewport()->grab().toImage();
    const QRgb colour = ranked->palette().color(QPalette::Highlight).lighter(130).rgb();
    const auto length = [&](int row) {
        const QRect cell = ranked->visualItemRect(ranked->topLevelItem(row));
        int count = 0;
        for (int x = 0; x < ranked->columnWidth(RankedList::Votes); ++x)
            count += image.pixel(x, cell.center().y()) == colour ? 1 : 0;
        return count;
    };
    QCOMPARE(length(0), 0);
    QVERIFY2(length(1) > 80, qPrintable(QString::number(length(1))));
    QVERIFY(qAbs(length(1) - 4 * length(2)) <= 4);
    if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty())
        app.window.grab().save(QString::fromLocal8Bit(folder) + QStringLiteral("/ranked.png"));

    ranked->setFocus();
    QTest::keyClick(ranked, Qt::Key_Home);
    QTest::keyClick(ranked, Qt::Key_Down);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Too new")));
    app.trigger("voteMore");
    QCOMPARE(ranked->currentItem()->text(RankedList::Votes), QStringLiteral("5"));
}

void TestActionsPanel::shouldNameEveryControl()
{
    const ActionsFixture app;
    QCOMPARE(TestSupport::namelessControls(*app.panel()), QStringList());
}

FISHBONE_TEST(TestActionsPanel)
#include "tst_actionspanel.moc"
