// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/textitem.h>

#include <QQueue>
#include <QSettings>

namespace {

const QList<int> directionKeys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};

/** The middle of the title of the subject @p title. */
QPointF sceneCenter(const AppFixture &app, const QString &title)
{
    const TextItem *const text = app.subject(title.toUtf8().constData())->spear()->textItem();
    return app.window.editor()->view()->viewportTransform().map(
        text->mapToScene(text->boundingRect().center()));
}

QString selected(const AppFixture &app)
{
    return app.selectedInDrawing().join(QLatin1Char(','));
}

} // namespace

class TestWalkCommands : public QObject
{
    Q_OBJECT

private:
    /** Shows the document in the look of the row of the test. */
    static void showIn(AppFixture &app)
    {
        QFETCH(bool, isClear);
        QFETCH(bool, isHeadLeft);
        app.trigger(isClear ? "lookClear" : "lookClassic");
        if (isHeadLeft)
            app.trigger("headLeft");
        QCOMPARE(app.window.editor()->look(), isClear ? DiagramLook::Clear : DiagramLook::Classic);
        QCOMPARE(app.window.editor()->lookOptions().isHeadLeft, isHeadLeft);
    }

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); } // where the look that was chosen last stands
    void shouldBeginAtTheHead();
    void shouldGoTheWayOfTheKey_data();
    void shouldGoTheWayOfTheKey();
    void shouldReachEveryVisibleBone_data();
    void shouldReachEveryVisibleBone();
    void shouldWalkByLevel_data();
    void shouldWalkByLevel();
    void shouldShowTheButtonWhereItComesTo();
    void shouldExpandWhatItGoesInto();
    void shouldLeaveTheTreeItsKeys();
    void shouldFitTheDrawingWithHome();
};

void TestWalkCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_walkcommands"));
}

void TestWalkCommands::shouldBeginAtTheHead()
{
    AppFixture app;
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Up);
    AppFixture::settle();
    QCOMPARE(selected(app), QStringLiteral("Late"));
}

void TestWalkCommands::shouldGoTheWayOfTheKey_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("isClear");
    QTest::addColumn<bool>("isHeadLeft");
    QTest::newRow("clear") << 0 << true << false;
    QTest::newRow("clear, head on the left") << 0 << true << true;
    QTest::newRow("clear, rotated") << 90 << true << false;
    QTest::newRow("classic") << 0 << false << false;
    QTest::newRow("classic, rotated") << 90 << false << false;
}

void TestWalkCommands::shouldGoTheWayOfTheKey()
{
    QFETCH(int, rotation);
    AppFixture app;
    showIn(app);
    app.trigger("expandall");
    app.window.editor()->rotateFish(rotation);
    int steps = 0;
    const QModelIndexList all = app.window.model()->searchModelIndexes(QString());
    for (const QModelIndex &index : all) {
        const QString from = app.window.model()->getTreeItem(index)->title();
        for (const int key : directionKeys) {
            app.select(from.toUtf8().constData());
            QTest::keyClick(app.window.editor()->view(), Qt::Key(key));
            AppFixture::settle();
            if (selected(app) == from)
                continue; // there is nothing that way
            ++steps;
            const QPointF way = sceneCenter(app, selected(app)) - sceneCenter(app, from);
            const double ahead = key == Qt::Key_Left    ? -way.x()
                                 : key == Qt::Key_Right ? way.x()
                                 : key == Qt::Key_Up    ? -way.y()
                                                        : way.y();
            QVERIFY2(ahead > 0, qPrintable(from + selected(app)));
        }
    }
    QVERIFY(steps >= all.size());
}

void TestWalkCommands::shouldReachEveryVisibleBone_data()
{
    QTest::addColumn<QString>("file"); ///< the fixture's when empty
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("isClear");
    QTest::addColumn<bool>("isHeadLeft");

    QTest::newRow("small") << QString() << 0 << false << false;
    QTest::newRow("small, rotated") << QString() << 90 << false << false;
    const QDir samples(TestSupport::sourceFile(QStringLiteral("samples")));
    const QStringList names = samples.entryList({QStringLiteral("*.json")});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        const QString path = samples.filePath(name);
        QTest::addRow("%s, classic", qPrintable(name)) << path << 0 << false << false;
        QTest::addRow("%s, clear", qPrintable(name)) << path << 0 << true << false;
        QTest::addRow("%s, head left", qPrintable(name)) << path << 0 << true << true;
    }
}

void TestWalkCommands::shouldReachEveryVisibleBone()
{
    QFETCH(QString, file);
    QFETCH(int, rotation);
    AppFixture app;
    if (!file.isEmpty())
        app.window.open({file});
    AppFixture::settle();
    showIn(app);
    app.trigger("expandall");
    app.window.editor()->rotateFish(rotation);
    const FishEditor *const editor = app.window.editor();
    QQueue<QPersistentModelIndex> waiting;
    waiting.enqueue(editor->rootIndex());
    QSet<QPersistentModelIndex> reached{waiting.head()};
    while (!waiting.isEmpty()) {
        const QPersistentModelIndex from = waiting.dequeue();
        for (const char *name : {"goLeft", "goRight", "goUp", "goDown"}) {
            app.window.session()->select(from);
            app.action(name)->trigger();
            const QPersistentModelIndex to = editor->firstSelectedSpearIndex();
            if (!reached.contains(to)) {
                reached.insert(to);
                waiting.enqueue(to);
            }
        }
    }
    QStringList missed;
    QList<const TreeItem *> all{app.window.model()->getTreeItem(editor->rootIndex())};
    for (int i = 0; i < all.size(); ++i) {
        if (!reached.contains(app.window.model()->indexFromItem(all.at(i))))
            missed.append(all.at(i)->title());
        for (const TreeItem *child : all.at(i)->childItems())
            all.append(child);
    }
    QCOMPARE(missed.join(QLatin1Char(',')), QString());
}

void TestWalkCommands::shouldWalkByLevel_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");

    const auto row = [](const char *name, const char *from, Qt::Key key, const char *to) {
        QTest::newRow(name) << QString::fromUtf8(from) << int(key) << QString::fromUtf8(to);
    };
    row("to the parent", "Illness", Qt::Key_Up, "Too few");
    row("to the head", "Machines", Qt::Key_Up, "Late");
    row("not beyond the head", "Late", Qt::Key_Up, "Late");
    row("to the first child", "Late", Qt::Key_Down, "People");
    row("to no child", "Machines", Qt::Key_Down, "Machines");
    row("to the next one", "People", Qt::Key_Right, "Machines");
    row("not beyond the last one", "Material", Qt::Key_Right, "Material");
    row("to the one before", "Too new", Qt::Key_Left, "Too few");
    row("not before the first one", "Too few", Qt::Key_Left, "Too few");
    row("the head has no next one", "Late", Qt::Key_Right, "Late");
}

void TestWalkCommands::shouldWalkByLevel()
{
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    AppFixture app;
    app.select(from.toUtf8().constData());
    QTest::keyClick(app.window.editor()->view(), Qt::Key(key), Qt::ControlModifier);
    AppFixture::settle();
    QCOMPARE(selected(app), to);
}

void TestWalkCommands::shouldShowTheButtonWhereItComesTo()
{
    AppFixture app;
    QCOMPARE(app.window.editor()->look(), DiagramLook::Clear);
    app.window.editor()->expandAll();
    app.select("Illness");
    AppFixture::settle();
    const auto withButton = [&app] {
        QStringList titles;
        for (const char *title : {"People", "Too few", "Material"}) {
            if (app.subject(title)->spear()->expandBuddy()->isVisible())
                titles << QLatin1String(title);
        }
        return titles.join(u',');
    };
    QCOMPARE(withButton(), QString());
    for (const char *title : {"Too few", "People", "Late"}) {
        QTest::keyClick(app.window.editor()->view(), Qt::Key_Up, Qt::ControlModifier);
        AppFixture::settle();
        QCOMPARE(selected(app), QLatin1String(title));
        QCOMPARE(withButton(),
                 title == QByteArray("Late") ? QString() : QString::fromLatin1(title));
    }
}

void TestWalkCommands::shouldExpandWhatItGoesInto()
{
    AppFixture app;
    app.select("People");
    QVERIFY(!app.subject("People")->spear()->isExpand());
    app.trigger("goChild");
    QCOMPARE(selected(app), QStringLiteral("Too few"));
    QVERIFY(app.subject("Too few")->spear()->isVisible());
}

void TestWalkCommands::shouldLeaveTheTreeItsKeys()
{
    AppFixture app;
    app.select("People");
    QTreeView *const tree = app.window.tree()->view();
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
    QTest::keyClick(tree, Qt::Key_Home);
    AppFixture::settle();
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Late")));
}

void TestWalkCommands::shouldFitTheDrawingWithHome()
{
    AppFixture app;
    GraphicsView *const view = app.window.editor()->view();
    app.window.editor()->zoomFish(600);
    const QRectF drawing = PictureExport::visibleRect(*app.window.editor()->scene());
    QVERIFY(view->mapFromScene(drawing).boundingRect().width() > view->viewport()->width());
    QTest::keyClick(view, Qt::Key_Home);
    AppFixture::settle();
    QVERIFY(view->viewport()->rect().contains(view->mapFromScene(drawing).boundingRect()));
}

FISHBONE_TEST(TestWalkCommands)
#include "tst_walkcommands.moc"
