// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undocommand.h>

#include <tests/program/testprogram.h>
#include <tests/support/undorecorder.h>

#include <QMetaMethod>
#include <QtTest>

#include <memory>
#include <type_traits>

static_assert(std::is_abstract_v<UndoCommand>);
static_assert(std::has_virtual_destructor_v<UndoCommand>);
static_assert(!std::is_copy_constructible_v<UndoCommand>);
static_assert(!std::is_convertible_v<QString, UndoCommand *>);

using namespace TestSupport;

class TestUndoCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepItsText();
    void shouldReplaceItsText();
    void shouldAskForANameThatFollowsTheLanguage();
    void shouldHaveNoParentUnlessGivenOne();
    void shouldDoNothingByItself();
    void shouldReachTheSubclassThroughTheBase();
    void shouldDeclareNothingToTheMetaObject();
};

void TestUndoCommand::shouldKeepItsText()
{
    UndoLog log;

    QCOMPARE(RecordingCommand(QStringLiteral("Move subjects"), &log).text(),
             QStringLiteral("Move subjects"));
    QCOMPARE(RecordingCommand(QString(), &log).text(), QString());
}

void TestUndoCommand::shouldReplaceItsText()
{
    UndoLog log;
    RecordingCommand command(QStringLiteral("Move subjects"), &log);

    command.setText(QStringLiteral("移动"));

    QCOMPARE(command.text(), QStringLiteral("移动"));
}

void TestUndoCommand::shouldAskForANameThatFollowsTheLanguage()
{
    UndoLog log;
    QString text = QStringLiteral("Move");
    RecordingCommand command(QStringLiteral("X"), &log);
    command.setText([&text] { return text; });
    QCOMPARE(command.text(), QStringLiteral("Move"));

    text = QStringLiteral("移动");
    QCOMPARE(command.text(), text);
    QCOMPARE(command.name()(), text);

    command.setText(UndoCommand::Name());
    QCOMPARE(command.text(), QString());
}

void TestUndoCommand::shouldHaveNoParentUnlessGivenOne()
{
    UndoLog log;
    QObject parent;

    QCOMPARE(RecordingCommand(QStringLiteral("X"), &log).parent(), nullptr);
    QCOMPARE(RecordingCommand(QStringLiteral("X"), &log, &parent).parent(), &parent);
}

void TestUndoCommand::shouldDoNothingByItself()
{
    UndoLog log;

    const RecordingCommand command(QStringLiteral("X"), &log);

    QCOMPARE(log.take(), QString());
}

void TestUndoCommand::shouldReachTheSubclassThroughTheBase()
{
    UndoLog log;
    std::unique_ptr<UndoCommand> command =
        std::make_unique<RecordingCommand>(QStringLiteral("X"), &log);

    command->redo();
    command->undo();
    command.reset();

    QCOMPARE(log.take(), QStringLiteral("redo X, undo X, delete X"));
}

void TestUndoCommand::shouldDeclareNothingToTheMetaObject()
{
    const QMetaObject &type = UndoCommand::staticMetaObject;

    QCOMPARE(QByteArray(type.className()), QByteArray("UndoCommand"));
    QCOMPARE(type.superClass(), &QObject::staticMetaObject);
    QCOMPARE(type.methodCount(), type.methodOffset());
    QCOMPARE(type.propertyCount(), type.propertyOffset());
}

FISHBONE_GUILESS_TEST(TestUndoCommand)

#include "tst_undocommand.moc"
