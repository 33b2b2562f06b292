// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPersistentModelIndex>
#include <QWidget>

class DiagramSession;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class TreeItem;

/**
 * The attributes of one subject: the selected one, or none. What is changed here becomes the
 * subject's when the user applies it, in one step, and until then can be reverted.
 */
class DetailsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsPanel(DiagramSession *session, QWidget *parent = nullptr);

    /** Shows the subject at @p index, unless changes to it wait to be applied here. */
    void showSubject(const QModelIndex &index);
    /** Lets the user begin to type a title. */
    void focusTitle();

public Q_SLOTS:
    /** Gives the subject what is entered. */
    void apply();
    /** Shows the subject as it is. */
    void revert();

private:
    void buildLayout();
    void watchFields();
    void setChanged(bool changed);
    void fill(const TreeItem &subject);
    void store(TreeItem &target, const TreeItem &subject) const;
    void storeStatus(TreeItem &subject) const;
    qint64 plannedEnd(qint64 before) const;
    QStringList enteredFollowers() const;

    DiagramSession *m_session;
    QPersistentModelIndex m_index;
    bool m_isChanged = false;
    QWidget *m_form;
    QLineEdit *m_title;
    QPlainTextEdit *m_detail;
    QComboBox *m_status;
    QSpinBox *m_progress;
    QSpinBox *m_priority;
    QLineEdit *m_managerName;
    QLineEdit *m_managerId;
    QLineEdit *m_followers;
    QCheckBox *m_hasPlannedEnd;
    QDateEdit *m_plannedEnd;
    QLabel *m_facts;
    QPushButton *m_apply;
    QPushButton *m_revert;
};
