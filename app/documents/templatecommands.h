// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class DocumentTabs;
class FishInfo;
class FishModel;
class QWidget;

namespace Templates {
struct Template;
}

/** Makes diagrams of templates, and templates of diagrams. */
class TemplateCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    TemplateCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window);

    /** Enables the actions as the open documents allow. */
    void updateActions();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void choose();
    void make(const Templates::Template &chosen);
    void makeFromFile();
    FishInfo *load(const QString &path);
    void show(FishInfo *document);
    void saveAsTemplate();

    DocumentTabs *m_tabs;
    ActionSet *m_actions;
    QWidget *m_window;
    FishModel *m_arrivals; ///< documents are loaded into it, and leave it for a tab
};
