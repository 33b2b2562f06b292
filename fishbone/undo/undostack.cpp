// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undostack.h>

#include <fishbone/undo/undocommand.h>

#include <QPointer>

#include <utility>

UndoStack::UndoStack(QObject *parent)
    : QObject(parent)
{
}

UndoStack::~UndoStack()
{
    // Each command is out of the list before it dies, so that nobody finds it there.
    while (!m_commands.isEmpty())
        m_commands.takeFirst();
}

void UndoStack::push(UndoCommand *command)
{
    if (!command)
        return;
    command->setParent(nullptr); // or two would own it

    const QPointer<UndoStack> self(this);
    const Command pushed(command);
    settle();
    if (!discardRedoTail())
        return;
    m_commands.append(pushed);
    m_pendingStep = 1;
    if (!run(pushed, &UndoCommand::redo))
        return;
    settle();
    boundHistory();
    if (self && emitAvailability())
        Q_EMIT stackChanged(this, m_index);
}

bool UndoStack::canUndo() const
{
    return m_index >= 0 && m_index < m_commands.count();
}

bool UndoStack::canRedo() const
{
    return m_index >= -1 && m_index < m_commands.count() - 1;
}

bool UndoStack::setCurrentIndex(int index)
{
    if (index < -1 || index >= m_commands.count() || index == m_index)
        return false;

    const QPointer<UndoStack> self(this);
    const auto step = index < m_index ? &UndoStack::undo : &UndoStack::redo;
    while (m_index != index) {
        const int before = m_index;
        (this->*step)();
        if (!self || m_index == before)
            return false;
    }
    return true;
}

QStringList UndoStack::commandNames() const
{
    QStringList names;
    names.reserve(m_commands.count());
    for (const Command &command : m_commands)
        names.append(command->text());
    return names;
}

void UndoStack::redo()
{
    if (m_running == 0 && canRedo()) {
        ++m_index;
        if (!run(m_commands.at(m_index), &UndoCommand::redo))
            return;
    }
    emitStep();
}

void UndoStack::undo()
{
    if (m_running == 0 && canUndo()) {
        m_pendingStep = -1;
        if (!run(m_commands.at(m_index), &UndoCommand::undo))
            return;
        settle();
    }
    emitStep();
}

/** Runs one side of a command, which is kept alive meanwhile. False when the stack did not survive
 * it. */
bool UndoStack::run(Command command, void (UndoCommand::*step)())
{
    const QPointer<UndoStack> self(this);
    const Command kept = std::move(command);
    ++m_running;
    (kept.get()->*step)();
    if (!self)
        return false;
    --m_running;
    return true;
}

/**
 * Counts the command that runs. It is counted when it is through, or when it pushes another one:
 * that one has to find the history as if the first were through.
 */
void UndoStack::settle()
{
    m_index += std::exchange(m_pendingStep, 0);
}

/** Deletes what could be redone, the newest first. False when the stack did not survive it. */
bool UndoStack::discardRedoTail()
{
    const QPointer<UndoStack> self(this);
    while (self && m_index < m_commands.count() - 1)
        m_commands.takeLast();
    return self;
}

void UndoStack::boundHistory()
{
    if (m_commands.count() < m_limit)
        return;
    const Command oldest = m_commands.takeFirst();
    if (m_isRolling)
        m_index = m_commands.count() - 1;
}

/** False when the stack did not survive it. */
bool UndoStack::emitAvailability()
{
    const QPointer<UndoStack> self(this);
    Q_EMIT undoAvailable(canUndo());
    if (self)
        Q_EMIT redoAvailable(canRedo());
    return self;
}

void UndoStack::emitStep()
{
    if (emitAvailability())
        Q_EMIT currentChanged(m_index);
}
