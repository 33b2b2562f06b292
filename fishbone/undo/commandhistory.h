// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>
#include <QVector>

#include <memory>

class UndoCommand;

/**
 * The commands of an undo stack in their order, which of them was applied last, and where they
 * stood when the document was saved. It runs no command.
 *
 * A command may do anything when it dies, end the history included: it is out of the list before,
 * and what is left of the call is skipped then.
 */
class CommandHistory
{
public:
    /** A running command outlives its place in the list. */
    using Command = std::shared_ptr<UndoCommand>;

    CommandHistory() = default;
    ~CommandHistory();

    /** The position of the command that was applied last, -1 when there is none. */
    int index() const { return m_index; }
    /** Adds @p by to the position. */
    void moveIndex(int by) { m_index += by; }
    /** What the command that runs adds to the position when it is through. */
    void setPendingStep(int by) { m_pendingStep = by; }
    /** Adds that, once. */
    void settle();
    int count() const { return m_commands.count(); }
    bool canUndo() const;
    bool canRedo() const;
    /** The command at @p position, which there has to be. */
    const Command &at(int position) const { return m_commands.at(position); }
    /** The command that was applied last, which there has to be. */
    const Command &current() const { return m_commands.at(m_index); }
    /** The command behind that, which there has to be. */
    const Command &next() const { return m_commands.at(m_index + 1); }
    /** The names of all commands, the oldest one first. */
    QStringList names() const;
    /** The titles of what each of them was done to, the oldest one first. */
    QVector<QStringList> subjects() const;

    /** Makes @p command the newest one; the position stays. */
    void append(const Command &command) { m_commands.append(command); }
    /** Deletes what could be redone, the newest first. */
    void discardRedoTail();
    /** Whether the position follows the commands when the oldest one is dropped; it does not at
     * first. */
    void setRolling(bool rolling) { m_isRolling = rolling; }
    /** Deletes the oldest command. */
    void dropOldest();
    /** Deletes all commands, the oldest one first. It is as clean as it was. */
    void clear();
    /** Deletes all commands, the oldest one first, and nothing else. */
    void removeAll();

    /** Remembers the position. */
    void setClean();
    /** Whether it is the one that was remembered, or where it began. One that is gone does not come
     * back. */
    bool isClean() const;

private:
    Q_DISABLE_COPY(CommandHistory)

    enum class CleanState { Beginning, Command, Gone };

    int m_index = -1;
    int m_pendingStep = 0;
    bool m_isRolling = false;
    QList<Command> m_commands;
    CleanState m_cleanState = CleanState::Beginning;
    std::weak_ptr<UndoCommand> m_cleanCommand; ///< the current one when setClean() was called
    std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);
};
