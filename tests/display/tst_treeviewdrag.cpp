// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/display/xserver.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QHBoxLayout>
#include <QIdentityProxyModel>
#include <QTreeView>

using namespace TestSupport;

namespace {

/** Lets a view drag subjects, as the model itself does not. */
class DraggableProxy : public QIdentityProxyModel
{
public:
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return QIdentityProxyModel::flags(index) | Qt::ItemIsDragEnabled;
    }
};

/** A model whose subjects may be dragged. */
class DraggableModel : public FishModel
{
public:
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return FishModel::flags(index) | Qt::ItemIsDragEnabled;
    }
    Qt::DropActions supportedDragActions() const override
    {
        return m_offersMoves ? Qt::MoveAction : FishModel::supportedDragActions();
    }

    bool m_offersMoves = false;
};

/** A tree view beside an editor, in a window on the screen. */
class Window : public QWidget
{
public:
    Window()
    {
        m_model.setModelType(FISH_MODEL_DIAGRAM);
        loadDocument(m_model, QStringLiteral("Head[A[A1,A2],B[B1],C]"));
        m_tree.setDragEnabled(true);
        m_tree.setDragDropMode(QAbstractItemView::DragDrop);
        m_tree.setFixedWidth(400);
        m_editor.setModel(&m_model);
        auto *const layout = new QHBoxLayout(this);
        layout->addWidget(&m_tree);
        layout->addWidget(&m_editor);
        setGeometry(0, 0, 1200, 800);
    }

    bool showOn(QAbstractItemModel *shown)
    {
        m_tree.setModel(shown);
        m_tree.expandAll();
        m_tree.setColumnWidth(0, 300);
        m_editor.setRootIndex(m_model.index(0, 0));
        show();
        if (!QTest::qWaitForWindowExposed(this))
            return false;
        m_editor.equalRatio(m_editor.scene()->itemsBoundingRect());
        return true;
    }

    /** Where the row of that title is on the screen. */
    QPoint inTree(const QString &title) const
    {
        const QModelIndexList found =
            m_tree.model()->match(m_tree.model()->index(0, 0), Qt::DisplayRole, title, 1,
                                  Qt::MatchExactly | Qt::MatchRecursive);
        return m_tree.viewport()->mapToGlobal(m_tree.visualRect(found.value(0)).center());
    }
    /** Where its bone is, in the outer half, where only that bone is. */
    QPoint inEditor(const QString &title) const
    {
        const SpearItem *const spear = nodeTitled(m_model, title)->spear();
        const QPoint point =
            m_editor.view()->mapFromScene(spear->mapToScene(spear->line().pointAt(0.8)));
        return m_editor.view()->viewport()->mapToGlobal(point);
    }
    QString text() const
    {
        const TreeItem *const head = m_model.getFishHeadTreeItem();
        return head ? treeToText(*head) : QString();
    }

    DraggableModel m_model;
    DraggableProxy m_proxy;
    QTreeView m_tree;
    FishEditor m_editor;
};

/**
 * Presses at one point of the screen and releases at another one, with a key held down; as an
 * X server tells its clients, step by step.
 */
bool drag(const QPoint &from, const QPoint &to, const QString &key)
{
    QStringList steps;
    const auto say = [&steps](const QString &step) { steps.append(step.split(QLatin1Char(' '))); };
    const auto go = [&say](const QPoint &point) {
        say(QStringLiteral("mousemove %1 %2 sleep 0.05").arg(point.x()).arg(point.y()));
    };
    go(from);
    say(QStringLiteral("mousedown 1 sleep 0.05"));
    if (!key.isEmpty())
        say(QStringLiteral("keydown ") + key);
    constexpr int parts = 8;
    for (int part = 1; part <= parts; ++part)
        go(from + (to - from) * part / parts);
    go(to + QPoint(1, 0));
    say(QStringLiteral("sleep 0.2 mouseup 1 sleep 0.1"));
    if (!key.isEmpty())
        say(QStringLiteral("keyup ") + key);
    QProcess hand;
    hand.start(QStringLiteral("xdotool"), steps);
    return QTest::qWaitFor([&hand] { return hand.state() == QProcess::NotRunning; }, 30000) &&
           hand.exitStatus() == QProcess::NormalExit && hand.exitCode() == 0;
}

} // namespace

/** Drags from a plain tree view into the drawing, with real events of a real display. */
class TestTreeViewDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLoseNothing_data();
    void shouldLoseNothing();
    void shouldLoseRowsThatTheModelOffersToMove();
};

void TestTreeViewDrag::shouldLoseNothing_data()
{
    QTest::addColumn<bool>("throughProxy");
    QTest::addColumn<Qt::DropAction>("action");
    QTest::addColumn<QString>("key");
    const struct
    {
        const char *name;
        Qt::DropAction action;
    } actions[] = {{"none", Qt::IgnoreAction}, {"copy", Qt::CopyAction}, {"move", Qt::MoveAction}};
    for (const auto &action : actions) {
        for (const char *key : {"", "shift", "ctrl"}) {
            for (const bool throughProxy : {false, true})
                QTest::addRow("%s by default, %s key, %s", action.name, *key ? key : "no",
                              throughProxy ? "proxy" : "model")
                    << throughProxy << action.action << QString::fromLatin1(key);
        }
    }
}

void TestTreeViewDrag::shouldLoseNothing()
{
    QFETCH(bool, throughProxy);
    QFETCH(Qt::DropAction, action);
    QFETCH(QString, key);
    Window window;
    if (throughProxy)
        window.m_proxy.setSourceModel(&window.m_model);
    window.m_tree.setDefaultDropAction(action);
    QVERIFY(window.showOn(throughProxy ? static_cast<QAbstractItemModel *>(&window.m_proxy)
                                       : &window.m_model));
    QSignalSpy removed(&window.m_model, &QAbstractItemModel::rowsRemoved);

    QVERIFY(drag(window.inTree(QStringLiteral("A1")), window.inEditor(QStringLiteral("C")), key));

    QTRY_COMPARE(window.text(), QStringLiteral("Head[A[A2],B[B1],C[A1]]"));
    QTest::qWait(100); // whatever the view does when its drag has ended
    QCOMPARE(window.text(), QStringLiteral("Head[A[A2],B[B1],C[A1]]"));
    QCOMPARE(removed.count(), 0);
}

/** What the drags above are safe from: so they would show it. */
void TestTreeViewDrag::shouldLoseRowsThatTheModelOffersToMove()
{
    Window window;
    window.m_model.m_offersMoves = true;
    window.m_tree.setDefaultDropAction(Qt::MoveAction);
    QVERIFY(window.showOn(&window.m_model));
    QSignalSpy removed(&window.m_model, &QAbstractItemModel::rowsRemoved);

    QVERIFY(
        drag(window.inTree(QStringLiteral("A1")), window.inEditor(QStringLiteral("C")), QString()));

    QTRY_COMPARE(removed.count(), 1);
}

static int runTestTreeViewDrag(int argc, char *argv[])
{
    return runOnXServer<TestTreeViewDrag>(argc, argv);
}
FISHBONE_TEST_MAIN(runTestTreeViewDrag)

#include "tst_treeviewdrag.moc"
