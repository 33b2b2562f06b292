// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/savedstate.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/undo/undostack.h>

SavedState::SavedState(FishEditor *editor)
    : m_editor(editor)
{
}

void SavedState::look(const FishInfo *shown)
{
    const UndoStack &stack = *m_editor->undoStack();
    const std::pair<int, int> place(stack.currentIndex(), stack.count());
    const bool isElsewhere = m_sawChange && place == m_place;
    if (isElsewhere || (shown && shown->modified() && stack.isClean()))
        m_isApart = true;
    m_sawChange = false;
    m_place = place;
}

void SavedState::markSaved(const FishInfo *shown)
{
    m_editor->undoStack()->setClean();
    m_isApart = false;
    look(shown);
}

bool SavedState::isSaved() const
{
    return !m_isApart && m_editor->undoStack()->isClean();
}
