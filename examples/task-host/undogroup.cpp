// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <undogroup.h>

#include <fishbone/undo/undostack.h>

#include <QAction>

UndoGroup::UndoGroup(QObject *parent)
    : QObject(parent)
    , m_undo(new QAction(tr("Undo"), this))
    , m_redo(new QAction(tr("Redo"), this))
{
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo->setShortcut(QKeySequence::Redo);
    connect(m_undo, &QAction::triggered, this, [this] {
        if (m_active)
            m_active->undo();
    });
    connect(m_redo, &QAction::triggered, this, [this] {
        if (m_active)
            m_active->redo();
    });
    refresh();
}

void UndoGroup::setActive(FishEditor *editor)
{
    if (m_active == editor)
        return;
    if (m_active)
        m_active->undoStack()->disconnect(this);
    m_active = editor;
    if (editor) {
        const UndoStack *const stack = editor->undoStack();
        connect(stack, &UndoStack::undoAvailable, this, &UndoGroup::refresh);
        connect(stack, &UndoStack::redoAvailable, this, &UndoGroup::refresh);
    }
    refresh();
}

void UndoGroup::refresh()
{
    m_undo->setEnabled(m_active && m_active->canUndo());
    m_redo->setEnabled(m_active && m_active->canRedo());
}
