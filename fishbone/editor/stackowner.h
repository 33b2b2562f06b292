// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <fishbone/editor/editorcall.h>
#include <fishbone/undo/undostackowner.h>

/// Brings the drawing up to date when somebody else than the editor calls its stack.
class FISHBONE_NO_EXPORT FishEditor::StackOwner final : public UndoStackOwner
{
    Q_DISABLE_COPY(StackOwner)

public:
    explicit StackOwner(FishEditor *editor)
        : m_editor(editor)
    {
    }

    /// The next call of the stack is one of the editor's own, which does that by itself.
    void expectOwnCall() { m_expectsOwnCall = true; }

    void stackCallBegins() override;
    void stackCallEnds(bool ran) override;

private:
    FishEditor *m_editor;
    std::vector<std::unique_ptr<Call>> m_calls; ///< null for one of the editor's own
    bool m_expectsOwnCall = false;
};
