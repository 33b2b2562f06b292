// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>

#include <memory>

class ActionSet;
class AutosaveStatus;
class CanvasTheme;
class DiagramCounts;
class DiagramSession;
class DocumentTab;
class DocumentTabs;
class FileDrop;
class FishEditor;
class FishModel;
class RecentFiles;
class SubjectTree;
class WindowCommands;
class WindowDocks;
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
    void addStatus();
    void addCommands();
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
    WindowCommands *m_commands = nullptr;
    std::unique_ptr<WindowDocks> m_docks; ///< which are the window's
    DiagramCounts *m_counts = nullptr;
};
