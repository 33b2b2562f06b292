// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

#include <fishbone/editor/fisheditor.h>

/// While one lives, the editor keeps changes of the selection to itself; at the end it reports them
/// all as one. What a command removes or a contraction hides loses its selection item by item, and
/// each report costs its listeners a look at the whole selection, in a tree that is not whole yet.
class FishEditor::SelectionHold
{
    Q_DISABLE_COPY(SelectionHold)

public:
    explicit SelectionHold(FishEditor *editor)
        : m_editor(editor)
    {
        ++m_editor->m_selectionHolds;
    }
    ~SelectionHold()
    {
        if (!m_editor || --m_editor->m_selectionHolds > 0 || !m_editor->m_selectionChanged)
            return;
        m_editor->m_selectionChanged = false;
        m_editor->sceneSelectionChanged();
    }

private:
    QPointer<FishEditor> m_editor;
};
