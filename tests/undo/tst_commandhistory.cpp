// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/commandhistory.h>
#include <fishbone/undo/undocommand.h>
#include <tests/program/testprogram.h>

#include <QtTest>

#include <functional>

/** The commands of an undo stack. */
class TestCommandHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhatCanBeUndoneAndRedone();
    void shouldCountTheCommandThatRunsOnce();
    void shouldDiscardWhatCouldBeRedoneTheNewestFirst();
    void shouldDropTheOldestCommand_data();
    void shouldDropTheOldestCommand();
    void shouldBeCleanWhereItWasSaved();
    void shouldNotBeCleanAgainWhenThatIsGone();
    void shouldStayCleanWhenItIsEmptied();
    void shouldEndWhenACommandEndsIt();
};

namespace {

/** A command that does nothing but tell of its end. */
class NamedCommand : public UndoCommand
{
public:
    NamedCommand(const QString &name, std::function<void(const QString &)> end)
        : UndoCommand(name)
        , m_end(std::move(end))
    {
    }
    ~NamedCommand() override { m_end(text()); }

    void undo() override {}
    void redo() override {}

private:
    std::function<void(const QString &)> m_end;
};

/** A history of commands a, b, c, …, the last of which was applied. */
struct Recorded
{
    explicit Recorded(int count)
    {
        for (int i = 0; i < count; ++i)
            add(QString(QLatin1Char(char('a' + i))));
    }

    void add(const QString &name)
    {
        history.append(
            std::make_shared<NamedCommand>(name, [this](const QString &ended) { ends += ended; }));
        history.moveIndex(1);
    }

    QString ends; ///< the names of the commands that died
    CommandHistory history;
};

} // namespace

void TestCommandHistory::shouldKnowWhatCanBeUndoneAndRedone()
{
    Recorded recorded(2);
    QCOMPARE(recorded.history.names(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QVERIFY(recorded.history.canUndo());
    QVERIFY(!recorded.history.canRedo());
    recorded.history.moveIndex(-1);
    QVERIFY(recorded.history.canRedo());
    QCOMPARE(recorded.history.current()->text(), QStringLiteral("a"));
    QCOMPARE(recorded.history.next()->text(), QStringLiteral("b"));
    recorded.history.moveIndex(-1);
    QVERIFY(!recorded.history.canUndo());
    recorded.history.moveIndex(3); // past the last one
    QVERIFY(!recorded.history.canUndo());
    QVERIFY(!recorded.history.canRedo());
}

void TestCommandHistory::shouldCountTheCommandThatRunsOnce()
{
    Recorded recorded(2);
    recorded.history.setPendingStep(-1);
    QCOMPARE(recorded.history.index(), 1);
    recorded.history.settle();
    recorded.history.settle();
    QCOMPARE(recorded.history.index(), 0);
}

void TestCommandHistory::shouldDiscardWhatCouldBeRedoneTheNewestFirst()
{
    Recorded recorded(4);
    recorded.history.moveIndex(-3);
    recorded.history.discardRedoTail();
    QCOMPARE(recorded.ends, QStringLiteral("dcb"));
    QCOMPARE(recorded.history.count(), 1);
}

void TestCommandHistory::shouldDropTheOldestCommand_data()
{
    QTest::addColumn<bool>("isRolling");
    QTest::addColumn<int>("index");
    QTest::newRow("following") << true << 1;
    QTest::newRow("not following") << false << 2;
}

void TestCommandHistory::shouldDropTheOldestCommand()
{
    QFETCH(bool, isRolling);
    Recorded recorded(3);
    recorded.history.setRolling(isRolling);
    recorded.history.dropOldest();
    QCOMPARE(recorded.ends, QStringLiteral("a"));
    QTEST(recorded.history.index(), "index");
    QCOMPARE(recorded.history.count(), 2);
}

void TestCommandHistory::shouldBeCleanWhereItWasSaved()
{
    Recorded recorded(0);
    QVERIFY(recorded.history.isClean()); // where it began
    recorded.add(QStringLiteral("a"));
    QVERIFY(!recorded.history.isClean());
    recorded.history.setClean();
    recorded.add(QStringLiteral("b"));
    QVERIFY(!recorded.history.isClean());
    recorded.history.moveIndex(-1);
    QVERIFY(recorded.history.isClean());
}

void TestCommandHistory::shouldNotBeCleanAgainWhenThatIsGone()
{
    Recorded recorded(2);
    recorded.history.setClean();
    recorded.history.moveIndex(-1);
    recorded.history.discardRedoTail();
    recorded.add(QStringLiteral("c"));
    QVERIFY(!recorded.history.isClean());
}

void TestCommandHistory::shouldStayCleanWhenItIsEmptied()
{
    Recorded clean(2);
    clean.history.setClean();
    clean.history.clear();
    QCOMPARE(clean.ends, QStringLiteral("ab"));
    QVERIFY(clean.history.isClean());
    QCOMPARE(clean.history.index(), -1);

    Recorded changed(2);
    changed.history.clear();
    QVERIFY(!changed.history.isClean());
}

void TestCommandHistory::shouldEndWhenACommandEndsIt()
{
    auto history = std::make_unique<CommandHistory>();
    for (int i = 0; i < 2; ++i)
        history->append(std::make_shared<NamedCommand>(QString(), [&history](const QString &) {
            history.reset(); // what it still holds ends with it
        }));
    history->removeAll();
    QVERIFY(!history);
}

FISHBONE_GUILESS_TEST(TestCommandHistory)
#include "tst_commandhistory.moc"
