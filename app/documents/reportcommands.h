// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

class ActionSet;
class DocumentTabs;
class MeetingReport;
class QWidget;

/** Writes what is sent round after a meeting about the document that is shown. */
class ReportCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    ReportCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window);

    /** Prints what @p page says, in HTML, as the actions. */
    void setActionsPage(const std::function<QString()> &page) { m_actionsPage = page; }

    /** Enables the actions as the open documents allow. */
    void updateActions();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    using Write =
        std::function<bool(const MeetingReport &report, const QString &path, QString *reason)>;

    static QChar listSeparator();
    QString proposed(const QString &ending) const;
    void printActions();
    QString chosenReport() const;
    QString chosenList() const;
    void write(const QString &title, QString (ReportCommands::*choose)() const, const Write &write);

    DocumentTabs *m_tabs;
    ActionSet *m_actions;
    QWidget *m_window;
    std::function<QString()> m_actionsPage;
};
