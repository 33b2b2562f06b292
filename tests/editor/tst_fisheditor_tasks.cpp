// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QMouseEvent>
#include <QtTest>

#include <fishbone/undo/undostack.h>
#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

namespace {

/** Waits for a context menu, lets @p act have it and closes it; gives up after a while. */
class MenuUser
{
public:
    explicit MenuUser(std::function<void(QMenu &)> act)
        : m_act(std::move(act))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(2);
    }

    bool hasSeenAMenu() const { return m_seen; }

private:
    void look()
    {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        if (m_seen) {
            menu->close();
            return;
        }
        m_seen = true;
        m_act(*menu);
    }

    std::function<void(QMenu &)> m_act;
    QTimer m_timer;
    bool m_seen = false;
};

void choose(QMenu &menu, int entry)
{
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions) {
        if (action->data().toInt() == entry) {
            menu.setActiveAction(action);
            QTest::keyClick(&menu, Qt::Key_Return);
            return;
        }
    }
    menu.close();
}

QString entriesOf(FishEditor &editor, SpearItem *spear)
{
    QMenu menu;
    editor.createPopMenu(menu, spear);
    QStringList entries;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions)
        entries.append(QStringLiteral("%1 %2").arg(action->data().toInt()).arg(action->text()));
    return entries.join(QLatin1String(", "));
}

} // namespace

class TestFishEditorTasks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOfferTheEntriesOfTheMode_data();
    void shouldOfferTheEntriesOfTheMode();
    void shouldOfferTaskEntriesWithoutAModel();
    void shouldReportTheChosenGesture_data();
    void shouldReportTheChosenGesture();
    void shouldDeleteThroughTheMenu();
    void shouldWriteADebugLineBeforeTheTaskSignals();
    void shouldShowNoMenuOnTheHeadInTaskMode();
    void shouldShowNoMenuForNothing();
    void shouldDoNothingWhenTheSubjectGoesWhileTheMenuIsOpen();
    void shouldSurviveItsOwnEndWhileTheMenuIsOpen();
    void shouldReportADoubleClickOnTheSelectedSpear();
};

void TestFishEditorTasks::shouldOfferTheEntriesOfTheMode_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("entries");
    const QString taskEntries =
        QStringLiteral("1001 新建子任务, 1002 查看详情, 1003 用鱼骨图详细查看");
    QTest::newRow("task") << 0 << QStringLiteral("A") << taskEntries;
    QTest::newRow("task, head") << 0 << QStringLiteral("Head") << taskEntries;
    QTest::newRow("diagram") << 1 << QStringLiteral("A")
                             << QStringLiteral("1004 编辑节点, 1005 新建子节点, 1006 删除节点");
    QTest::newRow("diagram, head")
        << 1 << QStringLiteral("Head") << QStringLiteral("1004 编辑节点, 1005 新建子节点");
    QTest::newRow("diagram, nothing")
        << 1 << QString() << QStringLiteral("1004 编辑节点, 1005 新建子节点");
}

void TestFishEditorTasks::shouldOfferTheEntriesOfTheMode()
{
    QFETCH(int, type);
    QFETCH(QString, title);
    QFETCH(QString, entries);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_TYPE(type));
    QCOMPARE(entriesOf(fixture.editor, title.isEmpty() ? nullptr : fixture.spear(title)), entries);
}

void TestFishEditorTasks::shouldOfferTaskEntriesWithoutAModel()
{
    FishEditor editor;
    QVERIFY(entriesOf(editor, nullptr).startsWith(QLatin1String("1001 ")));
}

void TestFishEditorTasks::shouldReportTheChosenGesture_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("report");
    QTest::newRow("sub-task") << 0 << 1001 << QStringLiteral("createNewSubTask(A, u-A, T-1)");
    QTest::newRow("details") << 0 << 1002 << QStringLiteral("oneTaskClicked(A, u-A)");
    QTest::newRow("diagram") << 0 << 1003 << QStringLiteral("changeFishWithModelIndex(A)");
    QTest::newRow("edit") << 1 << 1004 << QStringLiteral("editTaskDetail(A)");
    QTest::newRow("child") << 1 << 1005 << QStringLiteral("insertChildTask(A)");
    QTest::newRow("nothing chosen") << 1 << 0 << QString();
}

void TestFishEditorTasks::shouldReportTheChosenGesture()
{
    QFETCH(int, type);
    QFETCH(int, entry);
    QFETCH(QString, report);
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_TYPE(type));
    fixture.subject(QStringLiteral("A"))->setShowid(QStringLiteral("T-1"));
    SignalRecorder recorder(fixture.editor);
    MenuUser user([entry](QMenu &menu) { choose(menu, entry); });
    fixture.editor.onRightClicked(fixture.spear(QStringLiteral("A")));
    QVERIFY(user.hasSeenAMenu());
    QCOMPARE(recorder.take(), report);
}

void TestFishEditorTasks::shouldDeleteThroughTheMenu()
{
    EditorFixture fixture(SampleTrees::lettered());
    MenuUser user([](QMenu &menu) { choose(menu, 1006); });
    fixture.editor.onRightClicked(fixture.spear(QStringLiteral("A")));
    QVERIFY(user.hasSeenAMenu());
    QVERIFY(!fixture.subject(QStringLiteral("A")));
    QVERIFY(fixture.editor.canUndo());
}

void TestFishEditorTasks::shouldWriteADebugLineBeforeTheTaskSignals()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    QTest::ignoreMessage(QtDebugMsg, "emit createNewSubTask signal :  \"u-A\"");
    QTest::ignoreMessage(QtDebugMsg, "emit oneTaskClicked signal :  \"u-B\"");
    {
        MenuUser user([](QMenu &menu) { choose(menu, 1001); });
        fixture.editor.onRightClicked(fixture.spear(QStringLiteral("A")));
        QVERIFY(user.hasSeenAMenu());
    }
    {
        MenuUser user([](QMenu &menu) { choose(menu, 1002); });
        fixture.editor.onRightClicked(fixture.spear(QStringLiteral("B")));
        QVERIFY(user.hasSeenAMenu());
    }
}

void TestFishEditorTasks::shouldShowNoMenuOnTheHeadInTaskMode()
{
    EditorFixture fixture(SampleTrees::lettered());
    fixture.model.setModelType(FISH_MODEL_NORMAL);
    MenuUser user([](QMenu &menu) { menu.close(); });
    fixture.editor.onRightClicked(fixture.editor.headSpear());
    QCoreApplication::processEvents();
    QVERIFY(!user.hasSeenAMenu());
}

void TestFishEditorTasks::shouldShowNoMenuForNothing()
{
    EditorFixture fixture(SampleTrees::lettered());
    SpearItem stranger(QStringLiteral("no subject"), 0, 20);
    MenuUser user([](QMenu &menu) { menu.close(); });
    fixture.editor.onRightClicked(nullptr);
    fixture.editor.onRightClicked(&stranger);
    QCoreApplication::processEvents();
    QVERIFY(!user.hasSeenAMenu());
}

void TestFishEditorTasks::shouldDoNothingWhenTheSubjectGoesWhileTheMenuIsOpen()
{
    EditorFixture fixture(SampleTrees::lettered());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("editTaskDetail")});
    MenuUser user([&fixture](QMenu &menu) {
        fixture.model.unloadFish(fixture.info);
        choose(menu, 1004);
    });
    fixture.editor.onRightClicked(fixture.spear(QStringLiteral("A")));
    QVERIFY(user.hasSeenAMenu());
    QCOMPARE(recorder.take(), QString());
}

void TestFishEditorTasks::shouldSurviveItsOwnEndWhileTheMenuIsOpen()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(model, SampleTrees::lettered());
    auto editor = std::make_unique<FishEditor>();
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    MenuUser user([&editor](QMenu &menu) {
        editor.reset();
        choose(menu, 1005);
    });
    editor->onRightClicked(nodeTitled(model, QStringLiteral("A"))->spear());
    QVERIFY(user.hasSeenAMenu());
    QVERIFY(!editor);
}

void TestFishEditorTasks::shouldReportADoubleClickOnTheSelectedSpear()
{
    EditorFixture fixture(SampleTrees::lettered());
    SignalRecorder recorder(fixture.editor, {QStringLiteral("editTaskDetail")});
    QMouseEvent left(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    fixture.editor.doubleClicked(&left);
    QCOMPARE(recorder.take(), QString());
    fixture.select({QStringLiteral("B")});
    fixture.editor.doubleClicked(&left);
    QCOMPARE(recorder.take(), QStringLiteral("editTaskDetail(B)"));
    QMouseEvent both(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton,
                     Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
    fixture.editor.doubleClicked(&both);
    QCOMPARE(recorder.take(), QString());
}

FISHBONE_TEST(TestFishEditorTasks)
#include "tst_fisheditor_tasks.moc"
