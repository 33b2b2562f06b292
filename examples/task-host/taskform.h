// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPersistentModelIndex>
#include <QWidget>

class FishEditor;
class FishModel;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QPlainTextEdit;

/** The host's own form for what a task has beside its place. What it applies can be undone. */
class TaskForm : public QWidget
{
    Q_OBJECT

public:
    /** A form that edits through @p editor, on @p model. */
    TaskForm(FishModel &model, FishEditor &editor, QWidget *parent = nullptr);

    /** Shows the task at @p index, and edits it from now on. */
    void show(const QModelIndex &index);
    /** The uuid of that task; empty when there is none any more. */
    QString uuid() const;
    /** Shows what the task has now, after others have changed it. */
    void refresh();

    /** @name What the user types in, for tests and scripts
     * @{
     */
    void setTitle(const QString &title);
    void setStatus(int status);
    void setPerson(const QString &name);
    void setPlannedEnd(const QDate &day);
    void setDetail(const QString &text);
    /** @} */
    /** Makes the edits of the form one step of the editor's history. */
    void apply();

private:
    FishModel &m_model;
    FishEditor &m_editor;
    QPersistentModelIndex m_index;
    QLineEdit *m_title; // a child, as all of these
    QComboBox *m_status;
    QLineEdit *m_person;
    QCheckBox *m_hasEnd;
    QDateEdit *m_end;
    QPlainTextEdit *m_detail;
};
