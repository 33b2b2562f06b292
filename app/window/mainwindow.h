// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMainWindow>

class ActionSet;
class ActionsPanel;
class AutosaveStatus;
class CanvasTheme;
class DiagramCommands;
class DiagramCounts;
class DiagramSession;
class DocumentTab;
class DocumentTabs;
class EditCommands;
class ExportCommands;
class FileCommands;
class FileDrop;
class FishEditor;
class FishModel;
class LookCommands;
class MarkCommands;
class Minimap;
class QDockWidget;
class QStackedWidget;
class RecentFiles;
class RecoveryCommands;
class ReportCommands;
class SubjectTree;
class TabCommands;
class TemplateCommands;
class ViewCommands;
class WindowLayout;
class ZoomControls;

/** The program's window: the documents in tabs, and around them the tree, details and history of
 * the document that is shown. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    DocumentTabs *tabs() const { return m_tabs; }

    /**
     * @name Parts of the current tab; those of an empty one while no document is open
     * @{
     */
    FishModel *model() const;
    FishEditor *editor() const;
    DiagramSession *session() const;
    SubjectTree *tree() const;
    /** @} */

    /** Opens files and URLs; when there are none, the documents of the last time or the template
     * diagram. */
    void open(const QStringList &sources);

    /** Lets the user bring back what an earlier run has left that did not end well. */
    void offerRecovery();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addCommands();
    void addDocks();
    QDockWidget *addDock(const char *name, const char *title, Qt::DockWidgetArea area,
                         QWidget *contents);
    void addBars();
    void connectCommands();
    void takeIn(DocumentTab *tab);
    void connectGestures(DocumentTab *tab);
    void showTab(DocumentTab *tab);
    void showDetails();
    void showMessage(const QString &text);
    void startDiagram();
    void showTexts();
    void updateState();

    CanvasTheme *m_theme;
    ActionSet *m_actions;
    RecentFiles *m_recent;
    DocumentTabs *m_tabs;
    ZoomControls *m_controls = nullptr;
    FileDrop *m_drops;
    AutosaveStatus *m_autosave = nullptr;
    FileCommands *m_files = nullptr;
    RecoveryCommands *m_recovery = nullptr;
    ReportCommands *m_reports = nullptr;
    TemplateCommands *m_templates = nullptr;
    TabCommands *m_tabCommands = nullptr;
    MarkCommands *m_marks = nullptr;
    EditCommands *m_edits = nullptr;
    ExportCommands *m_exports = nullptr;
    ViewCommands *m_views = nullptr;
    WindowLayout *m_layout = nullptr;
    LookCommands *m_looks = nullptr;
    QList<DiagramCommands *> m_commands; ///< all on the diagram of the current tab
    QStackedWidget *m_trees = nullptr;
    QStackedWidget *m_details = nullptr;
    QStackedWidget *m_histories = nullptr;
    Minimap *m_overview = nullptr;
    ActionsPanel *m_actionsPanel = nullptr;
    DiagramCounts *m_counts = nullptr;
};
