// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tasks.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>

#include <QMainWindow>

class QPlainTextEdit;
class QSlider;
class QSpinBox;

/**
 * A window around the editor that answers each of its signals, and the model's.
 *
 * The editor reports what concerns tasks, and changes nothing by itself then: opening a task,
 * creating one, editing its details. The host does it, and edits the diagram through the editor's
 * slots, so that it can be undone.
 */
class TaskHost : public QMainWindow
{
    Q_OBJECT

public:
    explicit TaskHost(QWidget *parent = nullptr);
    ~TaskHost() override;

    FishEditor &editor() { return *m_editor; }
    FishModel &model() { return m_model; }
    const Tasks &tasks() const { return m_tasks; }
    /** The answers so far, one a line. */
    QString journal() const;

private:
    void connectModel();
    void connectTasks();
    void connectView();
    void connectBuffers();

    void addTask(const QModelIndex &parent, const QString &title);
    void showDetails(const QModelIndex &index);
    void applyDetails();
    void note(const QString &text);

    FishModel m_model;
    Tasks m_tasks;
    QPersistentModelIndex m_detailed;
    FishEditor *m_editor;      // a child
    QPlainTextEdit *m_journal; // a child
    QPlainTextEdit *m_details; // a child
    QSlider *m_zoom;           // a child
    QSpinBox *m_rotation;      // a child
    QAction *m_undo;           // a child
    QAction *m_copy;           // a child
    QAction *m_paste;          // a child
};
