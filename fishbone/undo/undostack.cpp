// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undostack.h>

#include <fishbone/undo/commandhistory.h>
#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostackowner.h>

#include <QPointer>

struct FISHBONE_NO_EXPORT UndoStack::Private
{
    CommandHistory history;
    int running = 0; // how many commands are within their undo() or redo()
    int runs = 0;    // of commands, so far
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
    m_d->history.removeAll();
}

void UndoStack::push(UndoCommand *command)
{
    if (!command)
        return;
    command->setParent(nullptr); // or two would own it

    const Call call(this);
    const CommandHistory::Command pushed(command);
    settle();
    if (!discardRedoTail())
        return;
    m_d->history.append(pushed);
    m_d->history.setPendingStep(1);
    if (!run(count() - 1, &UndoCommand::redo))
        return;
    settle();
    const QPointer<UndoStack> self(this);
    boundHistory();
    if (self) // also after the oldest command has ended
        emitChange();
}

int UndoStack::currentIndex() const
{
    return m_d->history.index();
}

int UndoStack::count() const
{
    return m_d->history.count();
}

void UndoStack::setRolling(bool rolling)
{
    m_d->history.setRolling(rolling);
}

void UndoStack::setOwner(UndoStackOwner *owner)
{
    m_d->owner = owner;
}

bool UndoStack::canUndo() const
{
    return m_d->history.canUndo();
}

bool UndoStack::canRedo() const
{
    return m_d->history.canRedo();
}

QString UndoStack::undoText() const
{
    return canUndo() ? m_d->history.current()->text() : QString();
}

QString UndoStack::redoText() const
{
    return canRedo() ? m_d->history.next()->text() : QString();
}

void UndoStack::clear()
{
    const QPointer<UndoStack> self(this);
    m_d->history.clear();
    if (self)
        emitChange();
}

void UndoStack::setClean()
{
    m_d->history.setClean();
}

bool UndoStack::isClean() const
{
    return m_d->history.isClean();
}

bool UndoStack::setCurrentIndex(int index)
{
    if (index < -1 || index >= count() || index == currentIndex())
        return false;

    const Call call(this);
    const QPointer<UndoStack> self(this);
    const bool isUndo = index < currentIndex();
    while (currentIndex() != index) {
        const int before = currentIndex();
        step(isUndo);
        if (!self || currentIndex() == before)
            return false;
    }
    return true;
}

QStringList UndoStack::commandNames() const
{
    return m_d->history.names();
}

QVector<QStringList> UndoStack::commandSubjects() const
{
    return m_d->history.subjects();
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
        m_d->history.setPendingStep(isUndo ? -1 : 0);
        if (!isUndo)
            m_d->history.moveIndex(1);
        if (!run(currentIndex(), isUndo ? &UndoCommand::undo : &UndoCommand::redo))
            return;
        settle();
    }
    if (emitAvailability())
        Q_EMIT currentChanged(currentIndex());
}

/** Runs one side of a command, which is kept alive meanwhile. False when the stack did not survive
 * it. */
bool UndoStack::run(int index, void (UndoCommand::*side)())
{
    const QPointer<UndoStack> self(this);
    const CommandHistory::Command kept = m_d->history.at(index);
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
    m_d->history.settle();
}

/** Deletes what could be redone, the newest first. False when the stack did not survive it. */
bool UndoStack::discardRedoTail()
{
    const QPointer<UndoStack> self(this);
    m_d->history.discardRedoTail();
    return self;
}

void UndoStack::boundHistory()
{
    if (count() >= m_limit)
        m_d->history.dropOldest();
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
        Q_EMIT stackChanged(this, currentIndex());
}
