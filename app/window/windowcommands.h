// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

class ActionSet;
class CanvasTheme;
class DiagramCommands;
class DocumentTab;
class DocumentTabs;
class EditCommands;
class ExportCommands;
class FileCommands;
class LookCommands;
class MarkCommands;
class QMainWindow;
class RecentFiles;
class RecoveryCommands;
class ReportCommands;
class TabCommands;
class TemplateCommands;
class ViewCommands;
class ZoomControls;

/** All commands of the window: those on files and tabs, and those on the diagram of the current
 * tab. What they have to say comes as one signal. */
class WindowCommands : public QObject
{
    Q_OBJECT

public:
    /** Makes the commands on @p tabs, with their actions in @p actions. Their dialogs stand over
     * @p window, which owns this object. */
    WindowCommands(DocumentTabs *tabs, RecentFiles *recent, ActionSet *actions, CanvasTheme *theme,
                   ZoomControls *zoom, QMainWindow *window);
    /** Ends those that know the tabs, which end after it. */
    ~WindowCommands() override;

    FileCommands *files() const { return m_files; }
    RecoveryCommands *recovery() const { return m_recovery; }
    ReportCommands *reports() const { return m_reports; }
    EditCommands *edits() const { return m_edits; }
    MarkCommands *marks() const { return m_marks; }
    LookCommands *looks() const { return m_looks; }
    ViewCommands *views() const { return m_views; }

    /** Works on the diagram of @p tab from now on. */
    void setTab(DocumentTab *tab);
    /** Enables the actions as the state of the current tab allows. */
    void updateActions();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void connectMessages();

    FileCommands *m_files;
    RecoveryCommands *m_recovery;
    ReportCommands *m_reports;
    TemplateCommands *m_templates;
    TabCommands *m_tabCommands;
    ExportCommands *m_exports;
    EditCommands *m_edits;
    ViewCommands *m_views;
    LookCommands *m_looks;
    MarkCommands *m_marks;
    QList<DiagramCommands *> m_onDiagram; ///< all that work on the diagram of the current tab
};
