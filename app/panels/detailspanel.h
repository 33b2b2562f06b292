// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QPersistentModelIndex>
#include <QVector>
#include <QWidget>

class DiagramSession;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QToolButton;
class StringListEditor;
class TreeItem;

/**
 * The attributes of one subject: the selected one, or none. What is changed here becomes the
 * subject's when the user applies it, in one step of the undo history, and until then can be
 * reverted. Only what was changed here is applied: the rest stays as it is by then.
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
    void nameFields();
    void setUpFields();
    void showTexts();
    void showFacts();
    void addRows(QFormLayout &rows);
    void buildLayout();
    void watchFields();
    void setChanged(bool changed);
    void fill(const TreeItem &subject);
    void store(TreeItem &target) const;
    qint64 plannedEnd(qint64 before) const;
    void showStatusIcon();
    void openLink() const;
    void editStyle();

    DiagramSession *m_session;
    QPersistentModelIndex m_index;
    QJsonObject m_shown; ///< what the fields said when they were filled
    bool m_isChanged = false;
    QWidget *m_form;
    QLineEdit *m_title;
    QLineEdit *m_number;
    QPlainTextEdit *m_detail;
    QComboBox *m_status;
    QSpinBox *m_progress;
    QLabel *m_statusIcon;
    QVector<QSpinBox *> m_numbers; ///< in the order of their list
    QLineEdit *m_managerName;
    QLineEdit *m_managerId;
    StringListEditor *m_followers;
    QCheckBox *m_hasPlannedEnd;
    QDateEdit *m_plannedEnd;
    QLineEdit *m_link;
    QToolButton *m_openLink;
    QPushButton *m_style;
    QLabel *m_facts;
    QPushButton *m_apply;
    QPushButton *m_revert;
};
