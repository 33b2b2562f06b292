// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/editing/diagramcommands.h>

class CanvasTheme;
class QMenu;
class QWidget;
class WindowLayout;
class ZoomControls;

/** The commands on how a diagram is shown: zoom, expansion, mode, and which part of it. */
class ViewCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    ViewCommands(DiagramSession *session, CanvasTheme *theme, ZoomControls *controls,
                 ActionSet *actions, QWidget *window);

    void setSession(DiagramSession *session) override;
    /** Enables the actions as the selection and the shown diagram allow. */
    void updateActions() override;

    /** Fills @p menu with the parts of the diagram that were shown before, each time it opens. */
    void listVisited(QMenu *menu);

    /** Adds the action that shows the drawing alone. */
    void offerFocus(WindowLayout *layout);

    /** Shows task counts and offers what concerns tasks, or not. */
    void setTaskMode(bool taskMode);

private:
    void addZoomActions();
    void addExpandActions();
    void expandAll();
    void addDiagramActions();
    void fitAll();
    void showMode();

    CanvasTheme *m_theme;
    ZoomControls *m_controls;
    QWidget *m_window;
    bool m_isTaskMode = false;
};
