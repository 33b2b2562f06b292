// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undostack.h>

#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostackowner.h>

#include <QList>
#include <QPointer>

#include <utility>

struct FISHBONE_NO_EXPORT UndoStack::Private
{
    using Command =
        std::shared_ptr<UndoCommand>; // a running command outlives its place in the list
    enum class CleanState { Beginning, Command, Gone };

    int index = -1;
    QList<Command> commands;
    int running = 0;     // how many commands are within their undo() or redo()
    int pendingStep = 0; // what the command that runs adds to the index when it is through
    bool isRolling = false;
    int runs = 0; // of commands, so far
    CleanState cleanState = CleanState::Beginning;
    std::weak_ptr<UndoCommand> cleanCommand; // the current one when setClean() was called
    UndoStackOwner *owner = nullptr;
};

/** A call from outside, of which the owner is told. */
class UndoStack::Call
{
    Q_DISABLE_COPY(Call)

public:
    explicit Call(UndoStack *stack)
        : m_stack(stack)
        , m_runsBefore(stack->m_d->runs)
    {
        if (stack->m_d->owner)
            stack->m_d->owner->stackCallBegins();
    }
    ~Call()
    {
        if (m_stack && m_stack->m_d->owner)
            m_stack->m_d->owner->stackCallEnds(m_stack->m_d->runs != m_runsBefore);
    }

private:
    QPointer<UndoStack> m_stack;
    int m_runsBefore;
};

UndoStack::UndoStack(QObject *parent)
    : QObject(parent)
    , m_d(std::make_unique<Private>())
{
}

UndoStack::~UndoStack()
{
    // Each command is out of the list before it dies, so that nobody finds it there.
    while (!m_d->commands.isEmpty())
        m_d->commands.takeFirst();
}

void UndoStack::push(UndoCommand *command)
{
    if (!command)
        return;
    command->setParent(nullptr); // or two would own it

    const Call call(this);
    const Private::Command pushed(command);
    settle();
    if (!discardRedoTail())
        return;
    m_d->commands.append(pushed);
    m_d->pendingStep = 1;
    if (!run(m_d->commands.count() - 1, &UndoCommand::redo))
        return;
    settle();
    const QPointer<UndoStack> self(this);
    boundHistory();
    if (self) // also after the oldest command has ended
        emitChange();
}

int UndoStack::currentIndex() const
{
    return m_d->index;
}

int UndoStack::count() const
{
    return m_d->commands.count();
}

void UndoStack::setRolling(bool rolling)
{
    m_d->isRolling = rolling;
}

void UndoStack::setOwner(UndoStackOwner *owner)
{
    m_d->owner = owner;
}

bool UndoStack::canUndo() const
{
    return m_d->index >= 0 && m_d->index < m_d->commands.count();
}

bool UndoStack::canRedo() const
{
    return m_d->index >= -1 && m_d->index < m_d->commands.count() - 1;
}

QString UndoStack::undoText() const
{
    return canUndo() ? m_d->commands.at(m_d->index)->text() : QString();
}

QString UndoStack::redoText() const
{
    return canRedo() ? m_d->commands.at(m_d->index + 1)->text() : QString();
}

void UndoStack::clear()
{
    const QPointer<UndoStack> self(this);
    m_d->cleanState = isClean() ? Private::CleanState::Beginning : Private::CleanState::Gone;
    m_d->index = -1;
    m_d->pendingStep = 0;
    while (self && !m_d->commands.isEmpty())
        m_d->commands.takeFirst();
    if (self)
        emitChange();
}

void UndoStack::setClean()
{
    m_d->cleanCommand.reset();
    if (m_d->index < 0) {
        m_d->cleanState = Private::CleanState::Beginning;
    } else if (canUndo()) {
        m_d->cleanState = Private::CleanState::Command;
        m_d->cleanCommand = m_d->commands.at(m_d->index);
    } else {
        m_d->cleanState = Private::CleanState::Gone; // past the last command, and so nowhere
    }
}

bool UndoStack::isClean() const
{
    return (m_d->cleanState == Private::CleanState::Beginning && m_d->index == -1) ||
           (m_d->cleanState == Private::CleanState::Command && canUndo() &&
            m_d->cleanCommand.lock() == m_d->commands.at(m_d->index));
}

bool UndoStack::setCurrentIndex(int index)
{
    if (index < -1 || index >= m_d->commands.count() || index == m_d->index)
        return false;

    const Call call(this);
    const QPointer<UndoStack> self(this);
    const bool isUndo = index < m_d->index;
    while (m_d->index != index) {
        const int before = m_d->index;
        step(isUndo);
        if (!self || m_d->index == before)
            return false;
    }
    return true;
}

QStringList UndoStack::commandNames() const
{
    QStringList names;
    names.reserve(m_d->commands.count());
    for (const Private::Command &command : m_d->commands)
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
    if (m_d->running == 0 && (isUndo ? canUndo() : canRedo())) {
        m_d->pendingStep = isUndo ? -1 : 0;
        if (!isUndo)
            ++m_d->index;
        if (!run(m_d->index, isUndo ? &UndoCommand::undo : &UndoCommand::redo))
            return;
        settle();
    }
    if (emitAvailability())
        Q_EMIT currentChanged(m_d->index);
}

/** Runs one side of a command, which is kept alive meanwhile. False when the stack did not survive
 * it. */
bool UndoStack::run(int index, void (UndoCommand::*side)())
{
    const QPointer<UndoStack> self(this);
    const Private::Command kept = m_d->commands.at(index);
    ++m_d->running;
    ++m_d->runs;
    (kept.get()->*side)();
    if (!self)
        return false;
    --m_d->running;
    return true;
}

/**
 * Counts the command that runs. It is counted when it is through, or when it pushes another one:
 * that one has to find the history as if the first were through.
 */
void UndoStack::settle()
{
    m_d->index += std::exchange(m_d->pendingStep, 0);
}

/** Deletes what could be redone, the newest first. False when the stack did not survive it. */
bool UndoStack::discardRedoTail()
{
    const QPointer<UndoStack> self(this);
    while (self && m_d->index < m_d->commands.count() - 1)
        m_d->commands.takeLast();
    return self;
}

void UndoStack::boundHistory()
{
    if (m_d->commands.count() < m_limit)
        return;
    const Private::Command oldest = m_d->commands.takeFirst();
    if (m_d->cleanState == Private::CleanState::Beginning)
        m_d->cleanState = Private::CleanState::Gone;
    if (!m_d->isRolling)
        return;
    m_d->index = m_d->commands.count() - 1;
    if (m_d->cleanState == Private::CleanState::Command && m_d->cleanCommand.lock() == oldest)
        m_d->cleanState = Private::CleanState::Beginning; // which is behind that one from now on
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
        Q_EMIT stackChanged(this, m_d->index);
}
