// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class DocumentTabs;

/** The commands that lead from one tab to another. */
class TabCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. */
    TabCommands(DocumentTabs *tabs, ActionSet *actions, QObject *parent);

    /** Enables the actions when there is another tab. */
    void updateActions();

private:
    DocumentTabs *m_tabs;
    ActionSet *m_actions;
};
