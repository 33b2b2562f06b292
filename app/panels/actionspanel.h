// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTabWidget>

class ActionList;
class DiagramSession;
class QAction;
class QComboBox;
class RankedList;

/** What follows from the causes: who is to do what, and, in a second tab, which causes come first.
 */
class ActionsPanel : public QTabWidget
{
    Q_OBJECT

public:
    /** Has buttons for @p exportAction, which writes the actions to a file, and @p printAction,
     * which prints page(). */
    ActionsPanel(QAction *exportAction, QAction *printAction, QWidget *parent = nullptr);

    /** Lists what @p session shows. */
    void setSession(DiagramSession *session);
    /** The actions as they are listed, as a page in HTML. */
    QString page() const;

private:
    QWidget *actionsPage(QAction *exportAction, QAction *printAction);
    void showTexts();

    ActionList *m_actions;
    RankedList *m_ranked;
    QComboBox *m_groups;
};
