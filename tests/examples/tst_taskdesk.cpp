// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <boardwindow.h>
#include <conflictbar.h>
#include <hosttexts.h>
#include <taskdesk.h>
#include <taskform.h>
#include <taskwindow.h>

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/fishinfo.h>

#include <QAbstractButton>
#include <QAction>
#include <QGraphicsScene>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSqlDatabase>
#include <QTreeView>

using namespace TestSupport;

class TestTaskDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desk = std::make_unique<TaskDesk>(path(), QStringLiteral("Ada"));
        QVERIFY(m_desk->start(false));
        m_desk->merge(R"({"title": "Head", "uuid": "h", "children": [
            {"title": "One", "uuid": "a", "children": [{"title": "Deep", "uuid": "c"}]},
            {"title": "Two", "uuid": "b"}]})");
        m_desk->merge(
            R"({"title": "Other", "uuid": "o", "children": [{"title": "p", "uuid": "p"}]})");
        QVERIFY(m_desk->sync().synchronize());
        QCOMPARE(m_desk->windows().size(), 1);
    }
    void cleanup() { m_desk.reset(); }

    void twoWindowsShowTwoDiagramsOfOneModel()
    {
        TaskWindow *const first = m_desk->windows().constFirst();
        TaskWindow *const second = m_desk->openTask(QStringLiteral("p"));
        QVERIFY(second && second != first);
        QCOMPARE(first->editor().rootIndex(), index("h"));
        QCOMPARE(second->editor().rootIndex(), index("o"));
        QCOMPARE(first->editor().model(), second->editor().model());
        QCOMPARE(m_desk->openTask(QStringLiteral("c")), first); // which shows it already
    }

    void theBoardShowsAllTasksAndOpensThem()
    {
        QTreeView &tree = m_desk->board()->tree();
        QCOMPARE(tree.model()->rowCount(), 2);
        QCOMPARE(tree.model()->index(0, 0).data().toString(), QStringLiteral("Head"));
        const QModelIndex row = tree.model()->index(1, 0);
        QVERIFY(row.flags().testFlag(Qt::ItemIsDragEnabled));
        Q_EMIT tree.activated(row);
        QCOMPARE(m_desk->windows().size(), 2);
    }

    void theBoardIsFilteredByTitles()
    {
        QTreeView &tree = m_desk->board()->tree();
        m_desk->board()->setFilter(QStringLiteral("deep"));
        const QModelIndex head = tree.model()->index(0, 0);
        QCOMPARE(tree.model()->rowCount(head), 1); // what is above it
        QCOMPARE(tree.model()->index(0, 0, head).data().toString(), QStringLiteral("One"));
        m_desk->board()->setFilter(QString());
        QCOMPARE(tree.model()->rowCount(head), 2);
    }

    void aTaskThatIsDraggedFromTheBoardMovesAndIsStored()
    {
        FishEditor &editor = m_desk->windows().constFirst()->editor();
        QAbstractItemModel *const board = m_desk->board()->tree().model();
        m_desk->board()->setFilter(QStringLiteral("p"));
        const QModelIndex dragged = board->index(0, 0, board->index(1, 0)); // of the other diagram
        const std::unique_ptr<QMimeData> drag(board->mimeData({dragged}));
        editor.onDropTo(drag.get(), index("b"), 0);
        QVERIFY(m_desk->sync().synchronize());
        QCOMPARE(m_desk->sync().known().value(QStringLiteral("p")).parent, QStringLiteral("b"));
        QCOMPARE(m_desk->windows().constFirst()->lastNote(), QStringLiteral("Moved 1 task(s)"));
    }

    void aBoneThatIsMovedWithTheMouseIsToldAndStored()
    {
        TaskWindow &window = *m_desk->windows().constFirst();
        SpearItem *const bone = m_desk->model().getTreeItem(index("b"))->spear();
        QVERIFY(bone);
        window.editor().moveItems(QPoint(), {bone}, index("a"), 1);
        QCOMPARE(window.lastNote(), QStringLiteral("Moved 1 task(s)"));
        QVERIFY(m_desk->sync().synchronize());
        QCOMPARE(m_desk->sync().known().value(QStringLiteral("b")).parent, QStringLiteral("a"));
    }

    void aDarkDesktopGetsADarkCanvas()
    {
        TaskWindow &window = *m_desk->windows().constFirst();
        QCOMPARE(int(window.editor().lookOptions().palette), int(DiagramLook::DistinctColors));
        QPalette dark = window.palette();
        dark.setColor(QPalette::Base, Qt::black);
        window.setPalette(dark);
        QCOMPARE(int(window.editor().lookOptions().palette), int(DiagramLook::DarkColors));
        QCOMPARE(window.editor().view()->backgroundBrush().color(), QColor(Qt::black));
    }

    void theEditorsWishesAreCarriedOutAndStored()
    {
        TaskWindow &window = *m_desk->windows().constFirst();
        Q_EMIT window.editor().insertChildTask(index("a"));
        Q_EMIT window.editor().createNewSubTask(QStringLiteral("Two"), QStringLiteral("b"), {});
        QVERIFY(m_desk->sync().synchronize());
        const TaskMap tasks = m_desk->sync().known();
        QCOMPARE(tasks.size(), 8);
        QStringList below;
        for (const Task &task : tasks) {
            if (task.parent == QLatin1String("a") || task.parent == QLatin1String("b"))
                below.append(task.title());
        }
        below.sort();
        QCOMPARE(below, QStringList({QStringLiteral("Deep"), QStringLiteral("New task"),
                                     QStringLiteral("Sub-task of Two")}));
    }

    void theFormEditsTheOpenedTaskAndCanBeUndone()
    {
        TaskWindow &window = *m_desk->windows().constFirst();
        Q_EMIT window.editor().oneTaskClicked(QStringLiteral("Two"), QStringLiteral("b"));
        QCOMPARE(window.form().uuid(), QStringLiteral("b"));
        const QDate day(2027, 3, 4);
        window.form().setTitle(QStringLiteral("Second"));
        window.form().setStatus(tsRunning);
        window.form().setPerson(QStringLiteral("Bob"));
        window.form().setPlannedEnd(day);
        window.form().setDetail(QStringLiteral("In short"));
        window.form().apply();
        QVERIFY(m_desk->sync().synchronize());
        const QJsonObject fields = m_desk->sync().known().value(QStringLiteral("b")).fields;
        QCOMPARE(fields.value(QStringLiteral("title")).toString(), QStringLiteral("Second"));
        QCOMPARE(fields.value(QStringLiteral("status")).toInt(), int(tsRunning));
        QCOMPARE(fields.value(QStringLiteral("mgrname")).toString(), QStringLiteral("Bob"));
        QCOMPARE(fields.value(QStringLiteral("detail")).toString(), QStringLiteral("In short"));
        QCOMPARE(qint64(fields.value(QStringLiteral("planenddate")).toDouble()),
                 day.startOfDay().toMSecsSinceEpoch());

        m_desk->undoGroup().setActive(&window.editor());
        m_desk->undoGroup().undoAction()->trigger();
        QVERIFY(m_desk->sync().synchronize());
        QCOMPARE(m_desk->sync().known().value(QStringLiteral("b")).title(), QStringLiteral("Two"));
        QVERIFY(m_desk->undoGroup().redoAction()->isEnabled());
    }

    void undoFollowsTheActiveEditor()
    {
        FishEditor &first = m_desk->windows().constFirst()->editor();
        FishEditor &second = m_desk->openTask(QStringLiteral("o"))->editor();
        UndoGroup &group = m_desk->undoGroup();
        group.setActive(&second);
        first.renameItem(index("b"), QStringLiteral("Second"));
        QVERIFY(!group.undoAction()->isEnabled());
        group.setActive(&first);
        QVERIFY(group.undoAction()->isEnabled());
        group.undoAction()->trigger();
        QCOMPARE(index("b").data().toString(), QStringLiteral("Two"));
    }

    void whatAnotherProcessDoesIsShownWithoutLosingTheSelection()
    {
        TaskWindow &window = *m_desk->windows().constFirst();
        window.editor().expandAll();
        SpearItem *const spear = m_desk->model().getTreeItem(index("c"))->spear();
        spear->setSelected(true);
        TaskDesk other(path(), QStringLiteral("Bob"));
        QVERIFY(other.start(false));
        FishModel &model = other.model();
        model.setData(model.modelIndexByUuid(QStringLiteral("a")), QStringLiteral("Bobs"));
        QVERIFY(model.insertRows(0, 1, model.modelIndexByUuid(QStringLiteral("a"))));
        QTRY_COMPARE_WITH_TIMEOUT(index("a").data().toString(), QStringLiteral("Bobs"),
                                  unlessSanitized(1000, 10000));
        QCOMPARE(m_desk->model().rowCount(index("a")), 2);
        QVERIFY(spear->isSelected());
        QVERIFY(spear->isVisible());
    }

    void aConflictIsToldAndSettled()
    {
        TaskWindow &window = *m_desk->windows().constFirst();
        QVERIFY(window.conflictBar().isHidden());
        TaskDesk other(path(), QStringLiteral("Bob"));
        QVERIFY(other.start(false));
        const QModelIndex theirs = other.model().modelIndexByUuid(QStringLiteral("b"));
        other.model().setData(theirs, QStringLiteral("Bobs"));
        window.editor().renameItem(index("b"), QStringLiteral("Adas"));
        QVERIFY(other.sync().synchronize());
        QVERIFY(m_desk->sync().synchronize());
        QVERIFY(!window.conflictBar().isHidden());
        for (const QString &word :
             {QStringLiteral("Bob"), QStringLiteral("Bobs"), QStringLiteral("Adas")})
            QVERIFY2(window.conflictBar().text().contains(word),
                     qPrintable(window.conflictBar().text()));
        window.conflictBar().settle(true);
        QVERIFY(window.conflictBar().isHidden());
        QTRY_COMPARE(theirs.data().toString(), QStringLiteral("Adas"));
    }

    void aDocumentIsTakenAwayEditedAndFetchedBack()
    {
        QByteArray document = m_desk->documentOf(index("c"));
        QVERIFY(document.contains("\"Deep\""));
        document.replace("\"Deep\"", "\"Deeper\"");
        const QString name = m_folder->filePath(QStringLiteral("away.json"));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(document), qint64(document.size()));
        file.close();
        QSignalSpy merged(m_desk.get(), &TaskDesk::merged);
        m_desk->mergeFrom(QUrl::fromLocalFile(name));
        QTRY_COMPARE(merged.count(), 1);
        QCOMPARE(merged.constFirst().constFirst().toString(), QString());
        QCOMPARE(index("c").data().toString(), QStringLiteral("Deeper"));
        QTRY_VERIFY(m_desk->sync().isStored());
    }

    void aWindowAsksBeforeWhatWaitsIsLostAndNotWhenItIsKept_data()
    {
        QTest::addColumn<bool>("keeps");
        QTest::newRow("lost") << false;
        QTest::newRow("kept") << true;
    }

    void aWindowAsksBeforeWhatWaitsIsLostAndNotWhenItIsKept()
    {
        QFETCH(bool, keeps);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("share")));
        TaskDesk desk(m_folder->filePath(QStringLiteral("share/tasks.sqlite")),
                      QStringLiteral("Bob"));
        if (keeps)
            desk.setJournalFolder(m_folder->filePath(QStringLiteral("waiting")));
        QVERIFY(desk.start());
        QCOMPARE(desk.windows().size(), 1);
        const QStringList connections = QSqlDatabase::connectionNames();
        for (const QString &connection : connections)
            QSqlDatabase::database(connection, false).close();
        QVERIFY(QDir(m_folder->path()).rename(QStringLiteral("share"), QStringLiteral("gone")));
        const QModelIndex bone = desk.model().index(0, 0, desk.model().index(0, 0));
        desk.windows().constFirst()->editor().renameItem(bone, QStringLiteral("Waits"));

        const ModalDriver<QMessageBox> user(
            [](QMessageBox &box) { box.button(QMessageBox::Cancel)->click(); });
        QCOMPARE(desk.windows().constFirst()->close(), keeps);
        QCOMPARE(user.isDone(), !keeps);
        QCOMPARE(desk.sync().isKept(), keeps);
    }

    void anAddressOfATaskOpensItsWindow()
    {
        LinkItem::open(TaskDesk::addressOf(QStringLiteral("o")).toString());
        QCOMPARE(m_desk->windows().size(), 2);
    }

    void theMenuOfABoneHasTheHostsEntry()
    {
        const std::unique_ptr<QTranslator> texts = HostTexts::load();
        QVERIFY(texts && QApplication::installTranslator(texts.get()));
        FishEditor &editor = m_desk->windows().constFirst()->editor();
        QMenu menu;
        editor.createPopMenu(menu, m_desk->model().getTreeItem(index("a"))->spear());
        const QList<QAction *> actions = menu.actions();
        QCOMPARE(actions.constFirst()->text(), QStringLiteral("New sub-task"));
        QCOMPARE(actions.size(), 4); // the sub-task, the details and the diagram of a task's own
        QCOMPARE(actions.constLast()->text(), QStringLiteral("Copy address"));
    }

private:
    QString path() const { return m_folder->filePath(QStringLiteral("tasks.sqlite")); }
    QModelIndex index(const char *uuid) const
    {
        return m_desk->model().modelIndexByUuid(QString::fromLatin1(uuid));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TaskDesk> m_desk;
};

FISHBONE_TEST(TestTaskDesk)
#include "tst_taskdesk.moc"
