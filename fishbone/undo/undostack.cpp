// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undostack.h>

#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostackowner.h>

#include <QPointer>

#include <utility>

/** A call from outside, of which the owner is told. */
class UndoStack::Call
{
    Q_DISABLE_COPY(Call)

public:
    explicit Call(UndoStack *stack)
        : m_stack(stack)
        , m_runsBefore(stack->m_runs)
    {
        if (stack->m_owner)
            stack->m_owner->stackCallBegins();
    }
    ~Call()
    {
        if (m_stack && m_stack->m_owner)
            m_stack->m_owner->stackCallEnds(m_stack->m_runs != m_runsBefore);
    }

private:
    QPointer<UndoStack> m_stack;
    int m_runsBefore;
};

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

    const Call call(this);
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
    emitChange();
}

bool UndoStack::canUndo() const
{
    return m_index >= 0 && m_index < m_commands.count();
}

bool UndoStack::canRedo() const
{
    return m_index >= -1 && m_index < m_commands.count() - 1;
}

QString UndoStack::undoText() const
{
    return canUndo() ? m_commands.at(m_index)->text() : QString();
}

QString UndoStack::redoText() const
{
    return canRedo() ? m_commands.at(m_index + 1)->text() : QString();
}

void UndoStack::clear()
{
    const QPointer<UndoStack> self(this);
    m_cleanState = isClean() ? CleanState::Beginning : CleanState::Gone;
    m_index = -1;
    m_pendingStep = 0;
    while (self && !m_commands.isEmpty())
        m_commands.takeFirst();
    if (self)
        emitChange();
}

void UndoStack::setClean()
{
    m_cleanCommand.reset();
    if (m_index < 0) {
        m_cleanState = CleanState::Beginning;
    } else if (canUndo()) {
        m_cleanState = CleanState::Command;
        m_cleanCommand = m_commands.at(m_index);
    } else {
        m_cleanState = CleanState::Gone; // past the last command, and so nowhere
    }
}

bool UndoStack::isClean() const
{
    return (m_cleanState == CleanState::Beginning && m_index == -1) ||
           (m_cleanState == CleanState::Command && canUndo() &&
            m_cleanCommand.lock() == m_commands.at(m_index));
}

bool UndoStack::setCurrentIndex(int index)
{
    if (index < -1 || index >= m_commands.count() || index == m_index)
        return false;

    const Call call(this);
    const QPointer<UndoStack> self(this);
    const bool isUndo = index < m_index;
    while (m_index != index) {
        const int before = m_index;
        step(isUndo);
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
    const Call call(this);
    step(false);
}

void UndoStack::undo()
{
    const Call call(this);
    step(true);
}

/** One step back or forth, where there is one, and its signals in any case. */
void UndoStack::step(bool isUndo)
{
    if (m_running == 0 && (isUndo ? canUndo() : canRedo())) {
        m_pendingStep = isUndo ? -1 : 0;
        if (!isUndo)
            ++m_index;
        if (!run(m_commands.at(m_index), isUndo ? &UndoCommand::undo : &UndoCommand::redo))
            return;
        settle();
    }
    if (emitAvailability())
        Q_EMIT currentChanged(m_index);
}

/** Runs one side of a command, which is kept alive meanwhile. False when the stack did not survive
 * it. */
bool UndoStack::run(Command command, void (UndoCommand::*side)())
{
    const QPointer<UndoStack> self(this);
    const Command kept = std::move(command);
    ++m_running;
    ++m_runs;
    (kept.get()->*side)();
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
    if (m_cleanState == CleanState::Beginning)
        m_cleanState = CleanState::Gone;
    if (!m_isRolling)
        return;
    m_index = m_commands.count() - 1;
    if (m_cleanState == CleanState::Command && m_cleanCommand.lock() == oldest)
        m_cleanState = CleanState::Beginning; // which is behind that one from now on
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

void UndoStack::emitChange()
{
    if (emitAvailability())
        Q_EMIT stackChanged(this, m_index);
}
