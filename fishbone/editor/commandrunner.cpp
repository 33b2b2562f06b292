// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/commandrunner.h>

#include <utility>

#include <fishbone/editor/shownroot.h>
#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostack.h>

CommandRunner::CommandRunner(UndoStack &stack, ShownRoot &root, EditorCalls &calls)
    : m_stack(stack)
    , m_root(root)
    , m_calls(calls)
{
    m_stack.setOwner(this);
}

CommandRunner::~CommandRunner()
{
    m_stack.setOwner(nullptr);
}

bool CommandRunner::push(const EditorCall &call, std::unique_ptr<UndoCommand> command)
{
    m_expectsOwnCall = true;
    m_stack.push(command.release());
    return call.isAlive();
}

void CommandRunner::finish(const EditorCall &call, Follow follow)
{
    if (follow != Follow::Nothing)
        m_root.update(follow == Follow::Rebuild);
    if (call.isAlive())
        call.mark(EditorCall::Otherwise::Shown);
}

void CommandRunner::execute(std::unique_ptr<UndoCommand> command, Follow follow)
{
    using AtItsEnd = EditorCall::AtItsEnd;
    const EditorCall call(m_calls,
                          follow == Follow::Nothing ? AtItsEnd::Nothing : AtItsEnd::LaysOut);
    if (push(call, std::move(command)))
        finish(call, follow);
}

void CommandRunner::executeOnce(UndoCommand &&command)
{
    const EditorCall call(m_calls, EditorCall::AtItsEnd::LaysOut);
    command.redo();
    if (call.isAlive())
        finish(call, Follow::Layout);
}

bool CommandRunner::run(std::unique_ptr<UndoCommand> command)
{
    if (!command)
        return false;
    const EditorCall call(m_calls, EditorCall::AtItsEnd::LaysOut);
    if (!push(call, std::move(command)))
        return false;
    m_root.update(false);
    const bool hasChanges = call.isAlive() && call.hasChanges();
    if (hasChanges)
        call.mark(EditorCall::Otherwise::Nothing);
    return hasChanges;
}

void CommandRunner::undo()
{
    step(&UndoStack::undo);
}

void CommandRunner::redo()
{
    step(&UndoStack::redo);
}

void CommandRunner::step(void (UndoStack::*side)())
{
    const EditorCall call(m_calls, EditorCall::AtItsEnd::LaysOut);
    m_expectsOwnCall = true;
    (m_stack.*side)();
    if (call.isAlive())
        m_root.update(true);
    if (call.isAlive())
        call.mark(EditorCall::Otherwise::Nothing);
}

void CommandRunner::stackCallBegins()
{
    const bool isOwn = std::exchange(m_expectsOwnCall, false);
    m_stackCalls.push_back(
        isOwn ? nullptr : std::make_unique<EditorCall>(m_calls, EditorCall::AtItsEnd::LaysOut));
}

void CommandRunner::stackCallEnds(bool ran)
{
    // Out of the list first: at the end of the call a listener may end the editor, and this with
    // it.
    const std::unique_ptr<EditorCall> call = std::move(m_stackCalls.back());
    m_stackCalls.pop_back();
    if (!call || (!ran && !call->hasChanges()))
        return;
    m_root.update(false);
    call->mark(EditorCall::Otherwise::Nothing);
}
