// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/common/language.h>
#include <app/editing/diagramcommands.h>

#include <fishbone/undo/undocommand.h>

#include <QKeySequence>
#include <QList>

#include <functional>
#include <vector>

class QAction;
class QColor;
class QMenu;
class QWidget;
class TreeItem;
struct MarkEntry;

/**
 * The commands that say in one go what the selected subjects are: verdict, votes, status, priority,
 * colour and who is responsible. All that are selected change, in one step of the history. They
 * stand in a menu, which the space bar opens at the bone, where letters choose.
 */
class MarkCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    MarkCommands(DiagramSession *session, ActionSet *actions, QWidget *window);

    /** All of them; owned by the window. */
    QMenu *menu() const { return m_menu; }

    /** Enables the actions as the selection allows. */
    void updateActions() override;

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    using Change = std::function<void(TreeItem &subject)>;
    using Test = std::function<bool(const TreeItem &subject)>;
    /** An action that is checked while it is what all selected subjects are. */
    struct Mark
    {
        QAction *action;
        Test test;
    };

    void addVotes();
    void addMenus();
    QMenu *addMenu(const char *name, const char *title);
    QAction *add(QMenu *menu, const char *name, const char *text, const QList<QKeySequence> &keys,
                 std::function<void()> run);
    void addMarks(QMenu *menu, const std::vector<MarkEntry> &entries, const char *step);
    void mark(const UndoCommand::Name &step, const Change &change);
    void setColour(const QColor &colour);
    void chooseColour();
    void chooseManager();
    void sortByVotes();
    void showAtBone();
    void showMarks() const;

    QWidget *m_window;
    QMenu *m_menu;
    std::vector<Mark> m_marks;
};
