// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/editing/diagramcommands.h>

#include <QPersistentModelIndex>

#include <functional>

class Finder;
class QWidget;
class SubjectClipboard;

/** The commands on the subjects of a diagram. */
class EditCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    EditCommands(DiagramSession *session, ActionSet *actions, QWidget *window);

    void setSession(DiagramSession *session) override;
    /** Enables the actions as the selection, the clipboard and the undo history allow. */
    void updateActions() override;

    /** Opens a field for the title of the subject at @p index, with @p typed in place of the title
     * unless that is empty. */
    void rename(const QModelIndex &index, const QString &typed = QString());

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);
    /** The user wants another diagram, to begin with its title. */
    void newDiagramWanted();

private:
    void insertSubTask(const QModelIndex &parent);
    void addHistoryActions();
    void nameHistoryActions();
    void addClipboardActions();
    void addInsertActions();
    void addSubjectActions();
    void selectBranches();
    void selectSiblings();
    void add(const char *name, const char *text, const QList<QKeySequence> &shortcuts,
             std::function<void()> run);
    /** Inserts a subject at the selected one by a @p Command and opens a field for its title; both
     * are one step of the history. */
    template <typename Command>
    void insertAndRename();
    template <typename Command>
    void insertSibling();

    QWidget *m_window;
    Finder *m_finder;
    SubjectClipboard *m_clipboard;
};
