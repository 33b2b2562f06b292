// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/commandhistory.h>

#include <fishbone/undo/undocommand.h>

#include <utility>

CommandHistory::~CommandHistory()
{
    *m_isAlive = false;
}

bool CommandHistory::canUndo() const
{
    return m_index >= 0 && m_index < count();
}

bool CommandHistory::canRedo() const
{
    return m_index >= -1 && m_index < count() - 1;
}

void CommandHistory::settle()
{
    m_index += std::exchange(m_pendingStep, 0);
}

QStringList CommandHistory::names() const
{
    QStringList names;
    names.reserve(count());
    for (const Command &command : m_commands)
        names.append(command->text());
    return names;
}

QVector<QStringList> CommandHistory::subjects() const
{
    QVector<QStringList> subjects;
    subjects.reserve(count());
    for (const Command &command : m_commands)
        subjects.append(command->subjectTitles());
    return subjects;
}

void CommandHistory::discardRedoTail()
{
    const std::shared_ptr<bool> isAlive = m_isAlive;
    while (*isAlive && m_index < count() - 1)
        m_commands.takeLast();
}

void CommandHistory::dropOldest()
{
    const Command oldest = m_commands.takeFirst();
    if (m_cleanState == CleanState::Beginning)
        m_cleanState = CleanState::Gone;
    if (!m_isRolling)
        return;
    m_index = count() - 1;
    if (m_cleanState == CleanState::Command && m_cleanCommand.lock() == oldest)
        m_cleanState = CleanState::Beginning; // which is behind that one from now on
}

void CommandHistory::clear()
{
    m_cleanState = isClean() ? CleanState::Beginning : CleanState::Gone;
    m_index = -1;
    m_pendingStep = 0;
    removeAll();
}

void CommandHistory::removeAll()
{
    const std::shared_ptr<bool> isAlive = m_isAlive;
    while (*isAlive && !m_commands.isEmpty())
        m_commands.takeFirst();
}

void CommandHistory::setClean()
{
    m_cleanCommand.reset();
    if (m_index < 0) {
        m_cleanState = CleanState::Beginning;
    } else if (canUndo()) {
        m_cleanState = CleanState::Command;
        m_cleanCommand = current();
    } else {
        m_cleanState = CleanState::Gone; // past the last command, and so nowhere
    }
}

bool CommandHistory::isClean() const
{
    return (m_cleanState == CleanState::Beginning && m_index == -1) ||
           (m_cleanState == CleanState::Command && canUndo() && m_cleanCommand.lock() == current());
}
