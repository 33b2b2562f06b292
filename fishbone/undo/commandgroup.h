// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/undo/undocommand.h>

#include <memory>

/**
 * Several commands that are one step of the history, under one name.
 *
 * redo() carries the members out in the order in which they were added, undo() takes them back in
 * reverse. A member that finds nothing to do holds up none of the others.
 *
 * Its subjects are those of the last member that is about any.
 *
 * What belongs to the step but is known only later (the title that a user types for a new subject,
 * say) can be added while the group is in effect, also on a stack.
 */
class FISHBONE_EXPORT CommandGroup : public UndoCommand
{
    Q_OBJECT

public:
    /** Makes a group without members, named @p text. */
    explicit CommandGroup(const QString &text, QObject *parent = nullptr);
    /** Makes a group without members, whose name follows the language. */
    explicit CommandGroup(const Name &name, QObject *parent = nullptr);
    /** Deletes the members. */
    ~CommandGroup() override;

    /**
     * Appends @p command, which the group takes over; null is ignored. While the group is in effect
     * the command is carried out at once, otherwise by the next redo().
     */
    void add(std::unique_ptr<UndoCommand> command);
    /** The number of members. */
    int count() const;

    void undo() override;
    void redo() override;

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};
