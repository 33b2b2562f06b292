// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class DocumentTab;
class DocumentTabs;
class FishInfo;
class FishModel;
class QWidget;
struct LeftCopy;

/** Brings back what a run that did not end well has left. */
class RecoveryCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the action to @p actions. Dialogs stand over @p window, which owns this object. */
    RecoveryCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window);

    /** Asks the user what to do with what was left; nothing when that is nothing. */
    void offer();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void offerOnDemand();
    bool open(const LeftCopy &copy);
    FishInfo *load(const LeftCopy &copy);
    DocumentTab *show(FishInfo *document, const QString &original);

    DocumentTabs *m_tabs;
    QWidget *m_window;
    FishModel *m_arrivals; ///< documents are loaded into it, and leave it for a tab
};
