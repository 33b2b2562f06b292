// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

class ActionsPanel;
class DocumentTab;
class Minimap;
class QAction;
class QDockWidget;
class QMainWindow;
class QStackedWidget;
class QWidget;
class WindowLayout;

/** The panels around the drawing. Three of them show what belongs to the current tab. */
class WindowDocks
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    /** Adds them to @p window, which owns them; @p exportActions and @p printActions stand in the
     * list of actions. */
    WindowDocks(QMainWindow *window, QAction *exportActions, QAction *printActions);

    /** Which of them are shown, and how large they are. */
    WindowLayout *layout() const { return m_layout; }

    /** Gives the panels of @p tab their places. */
    void takeIn(const DocumentTab &tab);
    /** Shows the panels of @p tab. */
    void show(const DocumentTab &tab);
    /** Brings the details of the current tab to the front. */
    void showDetails();
    /** The list of actions as it is shown, as a page in HTML. */
    QString actionsPage() const;
    /** Names the buttons in the titles anew, in the colours and the language of now. */
    void dressTitles() const;

private:
    Q_DISABLE_COPY(WindowDocks)

    void followTexts();
    QDockWidget *add(const char *name, const char *title, Qt::DockWidgetArea area,
                     QWidget *contents);

    QMainWindow *m_window;
    QStackedWidget *m_trees;
    QStackedWidget *m_details;
    QStackedWidget *m_histories;
    Minimap *m_overview;
    ActionsPanel *m_actions;
    QDockWidget *m_detailsDock;
    WindowLayout *m_layout;
};
