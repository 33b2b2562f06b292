// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QPersistentModelIndex>

class ActionSet;
class CanvasTheme;
class DetailsPanel;
class DiagramSession;
class EditCommands;
class ExportCommands;
class FileCommands;
class FishEditor;
class FishModel;
class HistoryPanel;
class MoveCommands;
class SubjectTree;
class TreeSync;
class ViewCommands;
class WalkCommands;

/** The program's window: the drawing in the middle, documents, details and history around it. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    FishModel *model() const { return m_model; }
    FishEditor *editor() const { return m_editor; }
    DiagramSession *session() const { return m_session; }
    SubjectTree *tree() const { return m_tree; }

    /** Opens files and URLs; when there are none, the documents of the last time or the template
     * diagram. */
    void open(const QStringList &sources);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpEditor();
    void addDocks();
    void addBars();
    void connectGestures();
    void followClick();
    QModelIndex subjectAt(const QPoint &pos) const;
    void showDetails(const QModelIndex &index);
    void updateState();
    void updateCanvasRect();
    void restoreLayout();

    FishModel *m_model;
    FishEditor *m_editor;
    DiagramSession *m_session;
    CanvasTheme *m_theme;
    ActionSet *m_actions;
    FileCommands *m_files = nullptr;
    ExportCommands *m_exports = nullptr;
    EditCommands *m_edits = nullptr;
    MoveCommands *m_moves = nullptr;
    WalkCommands *m_walk = nullptr;
    ViewCommands *m_views = nullptr;
    SubjectTree *m_tree = nullptr;
    TreeSync *m_sync = nullptr;
    DetailsPanel *m_details = nullptr;
    QPersistentModelIndex m_pressed; ///< the subject under the last press of a button
};
