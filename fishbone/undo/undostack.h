// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QObject>
#include <QStringList>
#include <QVector>

#include <memory>

class UndoCommand;
class UndoStackOwner;

/**
 * The linear history of an editor: which commands were run, and which of them is the last one in
 * effect.
 *
 * The stack owns its commands. It neither merges nor groups them, and it does not ask whether a
 * command had an effect. It can tell whether it is back where it was when setClean() was called.
 *
 * At its bound the oldest commands fall off while the index goes on counting, so that it stands
 * past the last command and nothing can be undone any more. setRolling() makes the index follow the
 * commands instead.
 *
 * A listener may call the stack from a signal, or delete it: what is left of the interrupted call
 * is skipped then. A command's own effect may push further commands, which take their place in the
 * history behind it; it cannot undo or redo while it runs.
 */
class FISHBONE_EXPORT UndoStack : public QObject
{
    Q_OBJECT

public:
    /** The number of commands at which the oldest one falls off. */
    static constexpr int m_limit = 100;

    /** Makes an empty history. */
    explicit UndoStack(QObject *parent = nullptr);

    /** Deletes the commands, the oldest one first. */
    ~UndoStack() override;

    /**
     * Runs @p command and makes it the newest one, in place of the commands that could be redone.
     *
     * The caller must not have applied the change already. The stack takes the command, which must
     * not be in a history yet; null is ignored. Emits undoAvailable(), redoAvailable() and
     * stackChanged().
     */
    void push(UndoCommand *command);

    /** Returns whether there is a command to undo. */
    bool canUndo() const;

    /** Returns whether there is a command to redo. */
    bool canRedo() const;

    /** Returns the position of the command that was applied last, -1 when there is none. */
    int currentIndex() const;

    /** Returns the number of commands, those that can be redone included. */
    int count() const;

    /** Returns the name of the command that undo() would take back; empty when there is none. */
    QString undoText() const;

    /** Returns the name of the command that redo() would repeat; empty when there is none. */
    QString redoText() const;

    /**
     * Deletes all commands, the oldest one first; what they did stays done. Emits undoAvailable(),
     * redoAvailable() and stackChanged(). The history is as clean as it was.
     */
    void clear();

    /** Remembers where the history stands now, which is where its document was saved, say. */
    void setClean();

    /**
     * Returns whether the history stands where setClean() was called last, or where it began. Once
     * that position is gone, by a push in its place or past the bound, it does not come back.
     */
    bool isClean() const;

    /**
     * Undoes or redoes step by step until @p index is the current one.
     *
     * Returns false when there is no such command, when it is the current one already, and as soon
     * as a step does not move the index. Every step emits the signals of undo() or redo().
     */
    bool setCurrentIndex(int index);

    /** Returns the names of all commands, the oldest one first, those that can be redone included.
     */
    QStringList commandNames() const;

    /** Returns for each of these commands the titles of the subjects that it is about. Linear in
     * the number of commands. */
    QVector<QStringList> commandSubjects() const;

    /**
     * Sets whether the index follows the commands that fall off at the bound; it does not at first.
     *
     * Takes effect with the next push, which also brings back an index that stands past the last
     * command.
     */
    void setRolling(bool rolling);

    /** Has @p owner, null for none, told of the calls of this stack. For FishEditor. */
    void setOwner(UndoStackOwner *owner);

public Q_SLOTS:
    /**
     * Redoes the next command, if there is one.
     *
     * Emits undoAvailable(), redoAvailable() and currentChanged() in any case.
     */
    void redo();

    /**
     * Undoes the current command, if there is one.
     *
     * Emits undoAvailable(), redoAvailable() and currentChanged() in any case.
     */
    void undo();

Q_SIGNALS:
    /** Tells whether there is a command to undo. */
    void undoAvailable(bool available);

    /** Tells whether there is a command to redo. */
    void redoAvailable(bool available);

    /** @p stack, which is the sender and never null, has a new command or, after clear(), none;
     * @p index is the current position. */
    void stackChanged(UndoStack *stack, int index);

    /** @p index is the current position after undo() or redo(). */
    void currentChanged(int index);

private:
    class Call;
    struct Private;

    void step(bool isUndo);
    bool run(int index, void (UndoCommand::*side)());
    void settle();
    bool discardRedoTail();
    void boundHistory();
    bool emitAvailability();
    void emitChange();

    const std::unique_ptr<Private> m_d;
};
