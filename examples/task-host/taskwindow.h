// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>

class ConflictBar;
class FishEditor;
class QAction;
class QLabel;
class QModelIndex;
class QSlider;
class QSpinBox;
class TaskDesk;
class TaskForm;

/**
 * A window around an editor that answers each of its signals.
 *
 * The editor reports what concerns tasks and changes nothing by itself then. The window does it,
 * and edits the diagram through the editor, so that it can be undone; that it gets into the data
 * base is none of its business.
 */
class TaskWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit TaskWindow(TaskDesk &desk, QWidget *parent = nullptr);
    ~TaskWindow() override;

    FishEditor &editor() const { return *m_editor; }
    TaskForm &form() const { return *m_form; }
    ConflictBar &conflictBar() const { return *m_conflicts; }
    /** Shows the diagram under @p head. */
    void showDiagram(const QModelIndex &head);
    /** The last words of the window. */
    QString lastNote() const { return m_lastNote; }

Q_SIGNALS:
    /** The window has answered the user. */
    void noted(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void fillToolBar();
    void connectTasks();
    void connectView();
    void connectState();
    void addMenuEntries();
    void followPalette();
    void addTask(const QModelIndex &parent, const QString &title);
    void showDetails(const QModelIndex &index);
    void exportDiagram();
    void mergeDocument();
    void note(const QString &text);

    TaskDesk &m_desk;
    FishEditor *m_editor; // a child, as all of these
    TaskForm *m_form;
    ConflictBar *m_conflicts;
    QLabel *m_state;
    QSlider *m_zoom;
    QSpinBox *m_rotation;
    QAction *m_copy = nullptr;
    QAction *m_paste = nullptr;
    QString m_lastNote;
};
