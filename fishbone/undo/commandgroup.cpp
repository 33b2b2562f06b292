// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/commandgroup.h>

#include <vector>

struct CommandGroup::Private
{
    std::vector<std::unique_ptr<UndoCommand>> members;
    std::size_t done = 0; // so many of them are in effect
    bool isInEffect = false;

    /** Looks at the list anew for each: a member may have others added while it runs. */
    void runPending(CommandGroup &group)
    {
        while (done < members.size()) {
            UndoCommand &member = *members[done++];
            member.redo();
            if (!member.subjectTitles().isEmpty())
                group.setSubjectTitles(member.subjectTitles());
        }
    }
};

CommandGroup::CommandGroup(const QString &text, QObject *parent)
    : CommandGroup([text] { return text; }, parent)
{
}

CommandGroup::CommandGroup(const Name &name, QObject *parent)
    : UndoCommand(name, parent)
    , m_d(std::make_unique<Private>())
{
}

CommandGroup::~CommandGroup() = default;

void CommandGroup::add(std::unique_ptr<UndoCommand> command)
{
    if (!command)
        return;
    command->setParent(nullptr); // or two would own it
    m_d->members.push_back(std::move(command));
    if (m_d->isInEffect)
        m_d->runPending(*this);
}

int CommandGroup::count() const
{
    return int(m_d->members.size());
}

void CommandGroup::redo()
{
    m_d->runPending(*this);
    m_d->isInEffect = true;
}

void CommandGroup::undo()
{
    m_d->isInEffect = false;
    while (m_d->done > 0)
        m_d->members[--m_d->done]->undo();
}
