// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class DocumentTabs;
class QWidget;

/** Writes what is sent round after a meeting about the document that is shown. */
class ReportCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the action to @p actions. Dialogs stand over @p window, which owns this object. */
    ReportCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window);

    /** Enables the action as the open documents allow. */
    void updateActions();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    QString chosenFile() const;
    void write();

    DocumentTabs *m_tabs;
    ActionSet *m_actions;
    QWidget *m_window;
};
