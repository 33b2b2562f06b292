// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/panels/detailspanel.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/taskstatusitem.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

#include <fishbone/items/linkitem.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/modaldriver.h>

namespace {

QString original()
{
    return QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]");
}

/** The followers as they are listed. */
QStringList listed(const AppFixture &app)
{
    const auto *const list = app.widget<QWidget>("detailsFollowers")->findChild<QListWidget *>();
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

void addFollower(const AppFixture &app, const QString &name)
{
    auto *const field = app.widget<QWidget>("detailsFollowers")->findChild<QLineEdit *>();
    field->setFocus(); // or the keys were shortcuts of the drawing
    field->clear();
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
}

/** The texts and values of all fields. */
QString allThatIsShown(const QWidget &panel)
{
    QStringList shown;
    const QList<QWidget *> fields = panel.findChildren<QWidget *>();
    for (const QWidget *field : fields) {
        for (const char *property :
             {"text", "plainText", "value", "currentIndex", "checked", "date"})
            shown.append(field->property(property).toString());
        if (const auto *const list = qobject_cast<const QListWidget *>(field)) {
            for (int row = 0; row < list->count(); ++row)
                shown.append(list->item(row)->text());
        }
    }
    return shown.join(QLatin1Char('|'));
}

void apply(const AppFixture &app)
{
    auto *const button = app.widget<QPushButton>("detailsApply");
    QVERIFY(button->isEnabled());
    button->click();
    AppFixture::settle();
}

} // namespace

class TestDetailsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheSelectedSubject();
    void shouldShowEveryAttributeThatDetailsHave_data();
    void shouldShowEveryAttributeThatDetailsHave();
    void shouldShowNoPriorityAsAWord();
    void shouldShowNothingWithoutASelection();
    void shouldApplyWhatIsEntered();
    void shouldRevertWhatIsEntered();
    void shouldApplyWhenAnotherSubjectIsSelected();
    void shouldKeepWhatIsNotShownFully();
    void shouldBeOneStepThatCanBeUndone();
    void shouldApplyOnlyWhatWasChanged();
    void shouldPushNothingWhenNothingDiffers();
    void shouldAddAndRemoveFollowers();
    void shouldShowTheIconOfTheStatusAndProgress();
    void shouldOpenTheLink();
    void shouldEditTheStyleInOneStep();
    void shouldNameEveryControl();
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
    QCOMPARE(listed(app), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QVERIFY(!app.widget<QPushButton>("detailsApply")->isEnabled());
    QVERIFY(!app.document()->modified());
}

void TestDetailsPanel::shouldShowEveryAttributeThatDetailsHave_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    for (const SubjectAttribute &attribute : SubjectAttribute::all()) {
        if (!attribute.uses().testFlag(SubjectAttribute::Detailed))
            continue;
        const QString key = attribute.key();
        QVariant value = key;
        if (attribute.kind() == SubjectAttribute::Number)
            value = 3;
        else if (attribute.kind() == SubjectAttribute::Date)
            value = Q_INT64_C(1500000000000);
        else if (attribute.kind() == SubjectAttribute::Texts)
            value = QStringList{key};
        QTest::newRow(attribute.key().data()) << key << value;
    }
}

void TestDetailsPanel::shouldShowEveryAttributeThatDetailsHave()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    AppFixture app;
    DetailsPanel *const panel = app.window.tabs()->current()->details();
    const QModelIndex index = app.window.session()->model()->index(0, 0);
    panel->showSubject(index);
    const QString before = allThatIsShown(*panel);

    SubjectAttribute::find(key)->set(*app.window.session()->model()->getTreeItem(index), value);
    panel->showSubject({});
    panel->showSubject(index);

    QVERIFY(allThatIsShown(*panel) != before);
}

void TestDetailsPanel::shouldShowNoPriorityAsAWord()
{
    AppFixture app;
    app.select("Machines");
    auto *const priority = app.widget<QSpinBox>("detailsPriority");
    QCOMPARE(priority->text(), QStringLiteral("none"));
    priority->setFocus();
    priority->selectAll();
    QTest::keyClicks(priority, QStringLiteral("3"));
    apply(app);
    QCOMPARE(app.subject("Machines")->priority(), 3);
    QCOMPARE(priority->text(), QStringLiteral("3"));
    priority->selectAll();
    QTest::keyClicks(priority, QStringLiteral("none"));
    apply(app);
    QCOMPARE(app.subject("Machines")->priority(), -1);
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
    addFollower(app, QStringLiteral("x"));
    addFollower(app, QStringLiteral(" y "));
    app.widget<QCheckBox>("detailsHasPlannedEnd")->setChecked(true);
    app.widget<QDateEdit>("detailsPlannedEnd")->setDate(QDate(2026, 3, 4));
    app.widget<QLineEdit>("detailsNumber")->setText(QStringLiteral("7"));
    app.widget<QLineEdit>("detailsLink")->setText(QStringLiteral(" http://localhost/ "));
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
    QCOMPARE(robots->showid(), QStringLiteral("7"));
    QCOMPARE(robots->url(), QStringLiteral("http://localhost/"));
    QVERIFY(robots->spear()->linkItem());
    QVERIFY(!app.widget<QPushButton>("detailsApply")->isEnabled());
    QCOMPARE(app.window.editor()->undoStack()->commandNames(),
             QStringList(QStringLiteral("Edit details")));
}

void TestDetailsPanel::shouldBeOneStepThatCanBeUndone()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Robots"));
    auto *const status = app.widget<QComboBox>("detailsStatus");
    status->setCurrentIndex(status->findData(int(tsRunning)));
    app.widget<QSpinBox>("detailsProgress")->setValue(70);
    apply(app);
    app.trigger("save"); // so that undoing is a change
    app.trigger("undo");
    QCOMPARE(app.text(), original());
    const TreeItem *const machines = app.subject("Machines");
    QCOMPARE(machines->status(), -1);
    QCOMPARE(machines->progress(), 0);
    QCOMPARE(machines->spear()->text(), QStringLiteral("Machines"));
    QCOMPARE(int(machines->spear()->statusItem()->status()), -1);
    QVERIFY(app.document()->modified());
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Machines"));
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    app.trigger("redo");
    QCOMPARE(app.subject("Robots")->spear()->statusItem()->progress(), 70);
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Robots"));
}

void TestDetailsPanel::shouldApplyOnlyWhatWasChanged()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsManager")->setText(QStringLiteral("Ann"));
    app.window.editor()->renameItem(app.find("Machines"), QStringLiteral("Robots"));
    AppFixture::settle();
    apply(app);
    QVERIFY(app.subject("Robots"));
    QCOMPARE(app.subject("Robots")->managerName(), QStringLiteral("Ann"));
    app.trigger("undo");
    QVERIFY(app.subject("Robots"));
    QCOMPARE(app.subject("Robots")->managerName(), QString());
    app.trigger("undo");
    QCOMPARE(app.text(), original());
}

void TestDetailsPanel::shouldPushNothingWhenNothingDiffers()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Robots"));
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Machines"));
    apply(app);
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    QVERIFY(!app.document()->modified());
}

void TestDetailsPanel::shouldAddAndRemoveFollowers()
{
    AppFixture app;
    TreeItem *const machines = app.subject("Machines");
    machines->setFollowers(QStringList{QStringLiteral("Li, Wei"), QStringLiteral("Bo")});
    app.select("Machines");
    auto *const list = app.widget<QWidget>("detailsFollowers")->findChild<QListWidget *>();
    list->setFocus();
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Delete);
    addFollower(app, QStringLiteral("Ann"));
    auto *const field = app.widget<QWidget>("detailsFollowers")->findChild<QLineEdit *>();
    QTest::keyClicks(field, QStringLiteral("Cai")); // and not added
    apply(app);
    QCOMPARE(machines->followers(), QStringList({QStringLiteral("Li, Wei"), QStringLiteral("Ann"),
                                                 QStringLiteral("Cai")}));
    QCOMPARE(listed(app), machines->followers());
    QVERIFY(field->text().isEmpty());
    app.trigger("undo");
    QCOMPARE(machines->followers(), QStringList({QStringLiteral("Li, Wei"), QStringLiteral("Bo")}));
}

void TestDetailsPanel::shouldShowTheIconOfTheStatusAndProgress()
{
    AppFixture app;
    app.select("Machines");
    const auto shown = [&app] { return app.widget<QLabel>("detailsStatusIcon")->grab().toImage(); };
    const QImage none = shown();
    auto *const status = app.widget<QComboBox>("detailsStatus");
    status->setCurrentIndex(status->findData(int(tsRunning)));
    app.widget<QSpinBox>("detailsProgress")->setValue(10);
    const QImage begun = shown();
    app.widget<QSpinBox>("detailsProgress")->setValue(80);
    QVERIFY(begun != none);
    QVERIFY(shown() != begun);
    app.widget<QPushButton>("detailsRevert")->click();
    QCOMPARE(shown(), none);
}

void TestDetailsPanel::shouldOpenTheLink()
{
    AppFixture app;
    QStringList opened;
    LinkItem::setOpener([&opened](const QUrl &url) { opened.append(url.toString()); });
    app.select("Machines");
    QVERIFY(!app.widget<QToolButton>("detailsOpenLink")->isEnabled());
    QTest::keyClicks(app.widget<QLineEdit>("detailsLink"), QStringLiteral("http://localhost/a"));
    QVERIFY(app.widget<QToolButton>("detailsOpenLink")->isEnabled());
    app.widget<QToolButton>("detailsOpenLink")->click();
    QCOMPARE(opened, QStringList(QStringLiteral("http://localhost/a")));
    QVERIFY(app.subject("Machines")->url().isEmpty()); // not applied by that
    LinkItem::setOpener({});
}

void TestDetailsPanel::shouldEditTheStyleInOneStep()
{
    AppFixture app;
    app.select("Machines");
    app.widget<QLineEdit>("detailsManager")->setText(QStringLiteral("Ann"));
    const TestSupport::ModalDriver<SpearStyleDialog> driver(
        [](SpearStyleDialog &dialog) { dialog.accept(); });
    app.widget<QPushButton>("detailsStyle")->click();
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QVERIFY(app.subject("Machines")->spearStyle());
    QCOMPARE(app.widget<QLineEdit>("detailsManager")->text(), QStringLiteral("Ann"));
    QVERIFY(app.subject("Machines")->managerName().isEmpty());
    app.trigger("undo");
    QVERIFY(!app.subject("Machines")->spearStyle());
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestDetailsPanel::shouldNameEveryControl()
{
    AppFixture app;
    app.select("Machines");
    QCOMPARE(TestSupport::namelessControls(*app.widget<QWidget>("detailsDock")), QStringList());
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
    QTest::newRow("action") << 1;
    QTest::newRow("double click in the tree") << 2;
}

void TestDetailsPanel::shouldOpenOnTheEditorsGestures()
{
    QFETCH(int, gesture);
    AppFixture app;
    auto *const dock = app.widget<QDockWidget>("detailsDock");
    dock->hide();
    app.select("Machines");
    if (gesture == 0) {
        const QGraphicsView *const view = app.window.editor()->view();
        const QPoint at = view->mapFromScene(app.subject("Machines")->spear()->line().center());
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
    } else if (gesture == 1) {
        app.trigger("details");
    } else {
        const QTreeView *const view = app.window.tree()->view();
        const QPoint at = view->visualRect(view->currentIndex()).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
    }
    AppFixture::settle();
    QVERIFY(dock->isVisible());
    QVERIFY(app.widget<QLineEdit>("detailsTitle")->hasFocus());
    QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Machines"));
}

FISHBONE_TEST(TestDetailsPanel)
#include "tst_detailspanel.moc"
