// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QtTest>

#include <functional>

#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

using namespace TestSupport;

namespace {
using MakeCommand = std::function<UndoCommand *(CommandFixture &)>;

/** Ends the model of a fixture when it has announced so many changes. */
class ModelEnder : public QObject
{
    Q_OBJECT

public:
    ModelEnder(CommandFixture &fixture, int announcements)
        : m_fixture(fixture)
        , m_left(announcements)
    {
        const FishModel *const model = fixture.model.get();
        connect(model, &FishModel::rowsInserted, this, &ModelEnder::count);
        connect(model, &FishModel::rowsRemoved, this, &ModelEnder::count);
        connect(model, &FishModel::rowsMoved, this, &ModelEnder::count);
        connect(model, &FishModel::dataChanged, this, &ModelEnder::count);
        connect(model, &FishModel::layoutChanged, this, &ModelEnder::count);
    }

private:
    void count()
    {
        if (--m_left == 0)
            m_fixture.model.reset();
    }

    CommandFixture &m_fixture;
    int m_left;
};

/**
 * How often a step can end the model: with each announcement that @p step makes, once. -1 when it
 * does so without any.
 */
int endings(const MakeCommand &make, const std::function<void(UndoCommand &)> &prepare,
            const std::function<void(UndoCommand &)> &step)
{
    for (int announcements = 1;; ++announcements) {
        CommandFixture f(QStringLiteral("H[A[a,b],B,C];G[D]"));
        f.draw();
        const std::unique_ptr<UndoCommand> command(make(f));
        prepare(*command);
        {
            const ModelEnder ender(f, announcements);
            step(*command);
        }
        if (f.model)
            return announcements - 1;
        // Without the model there is nothing that they could do.
        command->undo();
        command->redo();
    }
}
} // namespace

Q_DECLARE_METATYPE(MakeCommand)

/**
 * The commands that change the shape of a tree, while somebody who hears of a change ends the
 * model.
 */
class TestStructuralCommandsEnding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSurviveTheEndOfTheModelInEachStep_data();
    void shouldSurviveTheEndOfTheModelInEachStep();
    void shouldSurviveTheRemovalOfWhatHasMoved();
    void shouldLeaveWhatItsOldParentCameBelow();
};

void TestStructuralCommandsEnding::shouldSurviveTheEndOfTheModelInEachStep_data()
{
    QTest::addColumn<MakeCommand>("make");
    const auto row = [](const char *name, const MakeCommand &make) { QTest::newRow(name) << make; };
    row("child", [](CommandFixture &f) { return new InsertChild(f.model.get(), f.index("A")); });
    row("back", [](CommandFixture &f) { return new InsertBack(f.model.get(), f.index("A")); });
    row("front", [](CommandFixture &f) { return new InsertFront(f.model.get(), f.index("A")); });
    row("parent", [](CommandFixture &f) { return new InsertParent(f.model.get(), f.index("A")); });
    row("head", [](CommandFixture &f) { return new InsertParent(f.model.get(), f.index("H")); });
    row("free", [](CommandFixture &f) { return new InsertFree(f.model.get()); });
    row("deletion", [](CommandFixture &f) {
        return new EditDelete(f.model.get(), f.snapshot({QStringLiteral("A"), QStringLiteral("C"),
                                                         QStringLiteral("G")}));
    });
    row("paste", [](CommandFixture &f) {
        return new EditPaste(f.model.get(), f.index("B"),
                             f.snapshot({QStringLiteral("A"), QStringLiteral("D")}));
    });
    row("paste as new", [](CommandFixture &f) {
        auto *const paste = new EditPaste(f.model.get(), f.index("B"),
                                          f.snapshot({QStringLiteral("A"), QStringLiteral("D")}));
        paste->setPasteAsNew(true);
        return paste;
    });
    row("move", [](CommandFixture &f) {
        f.node("a")->setPid(QStringLiteral("elsewhere")); // which is announced when it comes back
        return new EditMove(
            f.model.get(), f.index("B"), 0,
            f.snapshot({QStringLiteral("a"), QStringLiteral("C"), QStringLiteral("D")}));
    });
    row("move of a head", [](CommandFixture &f) {
        return new EditMove(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("G")}));
    });
}

void TestStructuralCommandsEnding::shouldSurviveTheEndOfTheModelInEachStep()
{
    QFETCH(MakeCommand, make);
    const auto nothing = [](UndoCommand &) {};
    const auto redo = [](UndoCommand &command) { command.redo(); };
    const auto undo = [](UndoCommand &command) { command.undo(); };
    const auto redoAndUndo = [](UndoCommand &command) {
        command.redo();
        command.undo();
    };

    QVERIFY(endings(make, nothing, redo) > 0);
    QVERIFY(endings(make, redo, undo) > 0);
    QVERIFY(endings(make, redoAndUndo, redo) > 0);
}

void TestStructuralCommandsEnding::shouldSurviveTheRemovalOfWhatHasMoved()
{
    CommandFixture f(QStringLiteral("H[A[x,y],B]"));
    f.draw();
    EditMove command(f.model.get(), f.index("B"), 0,
                     f.snapshot({QStringLiteral("x"), QStringLiteral("y")}));
    const auto remove = [&f](const char *title) {
        const QModelIndex index = f.index(title);
        f.model->removeRows(index.row(), 1, index.parent());
    };
    const QMetaObject::Connection first =
        connect(f.model.get(), &FishModel::rowsMoved, this, [&f, remove] {
            if (f.node("y")->parent() == f.node("B") && f.node("x"))
                remove("x");
        });
    command.redo();
    disconnect(first);
    QCOMPARE(f.text(), QStringLiteral("H[A,B[y]]"));

    connect(f.model.get(), &FishModel::rowsMoved, this, [remove] { remove("y"); });
    command.undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
    command.redo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestStructuralCommandsEnding::shouldLeaveWhatItsOldParentCameBelow()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    EditMove command(f.model.get(), f.index("B"), 0, f.snapshot({QStringLiteral("a")}));
    command.redo();
    QVERIFY(f.model->moveRows(f.index("H"), 0, 1, f.index("a"), 0));
    QCOMPARE(f.text(), QStringLiteral("H[B[a[A]]]"));
    command.undo();
    QCOMPARE(f.text(), QStringLiteral("H[B[a[A]]]"));
}

FISHBONE_TEST(TestStructuralCommandsEnding)
#include "tst_structuralcommands_ending.moc"
