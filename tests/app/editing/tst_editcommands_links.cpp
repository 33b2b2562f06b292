// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <tests/app/editing/editcommandsparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/editing/titleeditor.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>

using namespace TestSupport;

/** Links, styles and tasks of a subject, and what the menu of a bone pastes. */
class TestEditCommandsLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldLinkAndUnlink();
    void shouldMarkAChangedStyle();
    void shouldUndoALink();
    void shouldBeginALinkWithTheOneThereIs();
    void shouldOpenTheLinkOfTheSubject();
    void shouldUndoAStyle();
    void shouldSurviveASubjectThatGoesWhileItsStyleIsEdited();
    void shouldPasteFromTheMenuOfABone_data();
    void shouldPasteFromTheMenuOfABone();
    void shouldInsertASubTask();
    void shouldInsertNoSubTaskWhenCancelled();
};

void TestEditCommandsLinks::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_editcommands_links"));
}

void TestEditCommandsLinks::shouldLinkAndUnlink()
{
    AppFixture app;
    app.select("Machines");
    QVERIFY(!app.action("openLink")->isEnabled());
    QVERIFY(!app.action("unlink")->isEnabled());
    const ModalDriver<QDialog> driver([](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(QStringLiteral("http://localhost/page"));
        dialog.accept();
    });
    app.trigger("link");
    QVERIFY(driver.isDone());
    QCOMPARE(app.subject("Machines")->url(), QStringLiteral("http://localhost/page"));
    QVERIFY(app.subject("Machines")->spear()->linkItem());
    QVERIFY(app.action("openLink")->isEnabled());

    app.trigger("unlink");
    QVERIFY(app.subject("Machines")->url().isEmpty());
    QVERIFY(!app.subject("Machines")->spear()->linkItem());
    QVERIFY(!app.action("unlink")->isEnabled());
}

void TestEditCommandsLinks::shouldMarkAChangedStyle()
{
    AppFixture app;
    app.select("Machines");
    QVERIFY(!app.action("removeStyle")->isEnabled());
    {
        const ModalDriver<SpearStyleDialog> driver(
            [](SpearStyleDialog &dialog) { dialog.reject(); });
        app.trigger("style");
        QVERIFY(driver.isDone());
    }
    QVERIFY(!app.document()->modified());
    {
        const ModalDriver<SpearStyleDialog> driver(
            [](SpearStyleDialog &dialog) { dialog.accept(); });
        app.trigger("style");
        QVERIFY(driver.isDone());
    }
    QVERIFY(app.subject("Machines")->spearStyle());
    QVERIFY(app.document()->modified());

    app.document()->setModified(false);
    app.trigger("removeStyle");
    QVERIFY(!app.subject("Machines")->spearStyle());
    QVERIFY(app.document()->modified());
    QVERIFY(app.window.isWindowModified());
}

void TestEditCommandsLinks::shouldUndoALink()
{
    AppFixture app;
    app.select("Machines");
    const ModalDriver<QDialog> driver([](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(QStringLiteral("http://localhost/page"));
        dialog.accept();
    });
    app.trigger("link");
    QVERIFY(driver.isDone());
    app.trigger("save");
    app.trigger("undo");
    QVERIFY(app.subject("Machines")->url().isEmpty());
    QVERIFY(!app.subject("Machines")->spear()->linkItem());
    QVERIFY(app.document()->modified());
    app.trigger("redo");
    QCOMPARE(app.subject("Machines")->url(), QStringLiteral("http://localhost/page"));
    QVERIFY(app.subject("Machines")->spear()->linkItem());
}

void TestEditCommandsLinks::shouldBeginALinkWithTheOneThereIs()
{
    AppFixture app;
    app.subject("Machines")->setUrl(QStringLiteral("http://localhost/old"));
    app.subject("Machines")->setShowid(QStringLiteral("7"));
    app.select("Machines");
    QString shown;
    const ModalDriver<QDialog> driver([&shown](QDialog &dialog) {
        shown = dialog.findChild<QLineEdit *>()->text();
        dialog.reject();
    });
    app.trigger("link");
    QVERIFY(driver.isDone());
    QCOMPARE(shown, QStringLiteral("http://localhost/old"));
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestEditCommandsLinks::shouldOpenTheLinkOfTheSubject()
{
    AppFixture app;
    QStringList opened;
    LinkItem::setOpener([&opened](const QUrl &url) { opened.append(url.toString()); });
    app.subject("Machines")->setUrl(QStringLiteral("http://localhost/a"));
    app.subject("Machines")->setShowid(QStringLiteral("7"));
    app.select("Machines");
    app.trigger("openLink");
    QCOMPARE(opened, QStringList(QStringLiteral("http://localhost/a")));
    LinkItem::setOpener({});
}

void TestEditCommandsLinks::shouldUndoAStyle()
{
    AppFixture app;
    app.select("Machines");
    const auto color = [&app] {
        const SpearStyle *const style = app.subject("Machines")->spearStyle();
        return style ? style->textColor(SpearStyle::ssNormal) : QColor();
    };
    QJsonObject red;
    {
        SpearStyle style;
        style.setTextColor(SpearStyle::ssNormal, Qt::red);
        style.write(red);
    }
    const ModalDriver<SpearStyleDialog> driver([](SpearStyleDialog &dialog) { dialog.accept(); });
    app.trigger("style");
    QVERIFY(driver.isDone());
    QVERIFY(app.subject("Machines")->spearStyle());
    app.trigger("save");
    app.trigger("undo");
    QVERIFY(!app.subject("Machines")->spearStyle());
    QVERIFY(app.document()->modified());
    app.trigger("redo");
    QVERIFY(app.subject("Machines")->spearStyle());

    app.subject("Machines")->setSpearStyle(red);
    app.trigger("removeStyle");
    QVERIFY(!app.subject("Machines")->spearStyle());
    QVERIFY(app.subject("Machines")->spear()->textColor(SpearStyle::ssNormal) != QColor(Qt::red));
    app.trigger("undo");
    QCOMPARE(color(), QColor(Qt::red));
    QCOMPARE(app.subject("Machines")->spear()->textColor(SpearStyle::ssNormal), QColor(Qt::red));
}

void TestEditCommandsLinks::shouldSurviveASubjectThatGoesWhileItsStyleIsEdited()
{
    AppFixture app;
    app.select("Machines");
    const ModalDriver<SpearStyleDialog> driver([&app](SpearStyleDialog &dialog) {
        app.window.model()->removeRows(1, 1, app.find("Late"));
        dialog.accept();
    });
    app.trigger("style");
    QVERIFY(driver.isDone());
    QVERIFY(!app.subject("Machines"));
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestEditCommandsLinks::shouldPasteFromTheMenuOfABone_data()
{
    QTest::addColumn<bool>("isDiagram");

    QTest::newRow("task mode") << false;
    QTest::newRow("diagram mode") << true;
}

void TestEditCommandsLinks::shouldPasteFromTheMenuOfABone()
{
    QFETCH(bool, isDiagram);
    AppFixture app;
    app.trigger(isDiagram ? "diagramMode" : "taskMode");
    QGuiApplication::clipboard()->setText(QStringLiteral("- One\n  - Two\n"));
    app.select("People");
    const GraphicsView *const view = app.window.editor()->view();
    const QPoint at = view->mapFromScene(app.subject("Machines")->spear()->line().center());

    QStringList entries;
    bool isPasted = false;
    QTimer::singleShot(0, &app.window, [&] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        AppFixture::settle(); // the actions follow the selection
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->isSeparator())
                continue;
            entries.append(action->objectName());
            if (action->objectName() == QLatin1String("paste") && action->isEnabled()) {
                isPasted = true;
                action->trigger();
            }
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->viewport()->mapToGlobal(at));
    QApplication::sendEvent(view->viewport(), &event);
    AppFixture::settle();
    QVERIFY(isPasted);
    QCOMPARE(entries.contains(QStringLiteral("child")), isDiagram);
    QCOMPARE(entries.contains(QStringLiteral("asDiagram")), !isDiagram);
    QVERIFY(app.text().contains(QLatin1String("Machines[One[Two]]")));
    app.trigger("undo");
    QCOMPARE(app.text(), original());
}

void TestEditCommandsLinks::shouldInsertASubTask()
{
    AppFixture app;
    app.select("Machines");
    const ModalDriver<QInputDialog> driver([](QInputDialog &dialog) {
        dialog.setTextValue(QStringLiteral("Repair"));
        dialog.accept();
    });
    app.trigger("subTask");
    QVERIFY(driver.isDone());
    QVERIFY(app.text().contains(QLatin1String("Machines[Repair]")));
    const TreeItem *const made = app.subject("Repair");
    QCOMPARE(made->pid(), QStringLiteral("{e}"));
    QVERIFY(!made->uuid().isEmpty());
    QVERIFY(made->createDate() > 0);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Repair")));
    app.trigger("undo");
    QCOMPARE(app.text(), original());
    app.trigger("redo");
    QVERIFY(app.text().contains(QLatin1String("Machines[Repair]")));
}

void TestEditCommandsLinks::shouldInsertNoSubTaskWhenCancelled()
{
    AppFixture app;
    app.select("Machines");
    const ModalDriver<QInputDialog> driver([](QInputDialog &dialog) { dialog.reject(); });
    app.trigger("subTask");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), original());
}

FISHBONE_TEST(TestEditCommandsLinks)
#include "tst_editcommands_links.moc"
