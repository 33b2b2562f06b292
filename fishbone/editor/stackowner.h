// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>
#include <vector>

#include <fishbone/editor/editorcall.h>
#include <fishbone/undo/undostackowner.h>

/// Brings the drawing up to date when somebody else than the editor calls its stack.
class FishEditor::StackOwner final : public UndoStackOwner
{
    Q_DISABLE_COPY(StackOwner)

public:
    explicit StackOwner(FishEditor *editor)
        : m_editor(editor)
    {
    }

    /// The next call of the stack is one of the editor's own, which does that by itself.
    void expectOwnCall() { m_expectsOwnCall = true; }

    /// Whether a command runs just now, at whose end the drawing is brought up to date: a command
    /// for many subjects tells of each, and a layout of each would be one too many.
    bool postponesLayout();
    /// Whether a layout was postponed since this was asked last.
    bool takePostponedLayout() { return std::exchange(m_isLayoutDue, false); }

    void stackCallBegins() override;
    void stackCallEnds(bool ran) override;

private:
    FishEditor *m_editor;
    std::vector<std::unique_ptr<Call>> m_calls; ///< null for one of the editor's own
    bool m_expectsOwnCall = false;
    bool m_isLayoutDue = false;
};
