// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/editor/fisheditor.h>

#include <QObject>
#include <QPointer>

class QAction;

/** One pair of actions for the histories of several editors: they act on the active one. */
class UndoGroup : public QObject
{
    Q_OBJECT

public:
    explicit UndoGroup(QObject *parent = nullptr);

    /** Has the actions act on @p editor from now on. */
    void setActive(FishEditor *editor);
    /** The editor they act on; null for none. */
    FishEditor *active() const { return m_active; }
    /** Takes back what was done last. */
    QAction *undoAction() const { return m_undo; }
    /** Repeats what was taken back. */
    QAction *redoAction() const { return m_redo; }

private:
    void refresh();

    QPointer<FishEditor> m_active;
    QAction *m_undo; // a child
    QAction *m_redo; // a child
};
