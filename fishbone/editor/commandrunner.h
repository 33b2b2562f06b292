// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <fishbone/editor/editorcall.h>
#include <fishbone/undo/undostackowner.h>

class ShownRoot;
class UndoCommand;
class UndoStack;

/**
 * The one way from a command to the screen: runs it, has the drawing follow and marks the documents
 * that have changed. Does the same when somebody else calls the stack.
 */
class CommandRunner final : public UndoStackOwner
{
    Q_DISABLE_COPY(CommandRunner)

public:
    /** How the drawing follows a command. */
    enum class Follow { Layout, Rebuild, Nothing };

    /** Runs on @p stack, whose owner it is; all must live as long. */
    CommandRunner(UndoStack &stack, ShownRoot &root, EditorCalls &calls);
    ~CommandRunner();

    /** Runs a command on the stack and has the drawing follow; marks the shown document when no
     * model has told of a change. */
    void execute(std::unique_ptr<UndoCommand> command, Follow follow = Follow::Layout);
    /** Runs a command outside the history. */
    void executeOnce(UndoCommand &&command);
    /** Runs a command on the stack, null for none; false when it changed nothing, also when a
     * listener has ended the editor. */
    bool run(std::unique_ptr<UndoCommand> command);
    /** Undoes a command and makes the drawing anew. */
    void undo();
    /** Redoes a command, likewise. */
    void redo();

    /** The first half of execute(), within @p call; false when a listener has ended the editor. */
    bool push(const EditorCall &call, std::unique_ptr<UndoCommand> command);
    /** The second half. */
    void finish(const EditorCall &call, Follow follow);

    void stackCallBegins() override;
    void stackCallEnds(bool ran) override;

private:
    void step(void (UndoStack::*side)());

    UndoStack &m_stack;
    ShownRoot &m_root;
    EditorCalls &m_calls;
    std::vector<std::unique_ptr<EditorCall>> m_stackCalls; ///< null for one of its own
    bool m_expectsOwnCall = false;
};
