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
    /** Has a button for @p exportAction, which writes the actions to a file. */
    explicit ActionsPanel(QAction *exportAction, QWidget *parent = nullptr);

    /** Lists what @p session shows. */
    void setSession(DiagramSession *session);

private:
    QWidget *actionsPage(QAction *exportAction);
    void showTexts();

    ActionList *m_actions;
    RankedList *m_ranked;
    QComboBox *m_groups;
};
