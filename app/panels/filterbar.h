// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/subjectfilter.h>

#include <QFrame>

class DiagramSession;
class DrawingFilter;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QToolButton;

/**
 * Asks above a drawing which subjects are wanted, and has the filter show them as one types. There
 * is no filter while the bar is closed.
 */
class FilterBar : public QFrame
{
    Q_OBJECT

public:
    /** Sets @p filter, of the drawing of @p session; both outlive the bar, which is closed. */
    FilterBar(DiagramSession *session, DrawingFilter *filter, QWidget *parent = nullptr);

    /** Shows the bar and lets the user type. */
    void open();

Q_SIGNALS:
    /** The user has closed the bar. */
    void closed();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void nameFields();
    void buildLayout();
    void connectFields();
    void showTexts();
    void showCross();
    void showAnybody();
    void listPeople();
    void showCount();
    SubjectFilter entered() const;
    void clear();
    void leave();

    DiagramSession *m_session;
    DrawingFilter *m_filter;
    QLineEdit *m_text;
    QComboBox *m_status;
    QComboBox *m_verdict;
    QComboBox *m_person;
    QSpinBox *m_votes;
    QCheckBox *m_overdue;
    QCheckBox *m_fold;
    QLabel *m_count;
    QToolButton *m_close;
};
