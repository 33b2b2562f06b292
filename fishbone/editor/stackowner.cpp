// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/stackowner.h>

#include <utility>

void FishEditor::StackOwner::stackCallBegins()
{
    const bool isOwn = std::exchange(m_expectsOwnCall, false);
    m_calls.push_back(isOwn ? nullptr : std::make_unique<Call>(m_editor, Call::AtItsEnd::LaysOut));
}

void FishEditor::StackOwner::stackCallEnds(bool ran)
{
    // Out of the list first: at the end of the call a listener may end the editor, and this with
    // it.
    const std::unique_ptr<Call> call = std::move(m_calls.back());
    m_calls.pop_back();
    if (!call || (!ran && !call->hasChanges()))
        return;
    m_editor->updateFish(false);
    call->mark(Call::Otherwise::Nothing);
}
