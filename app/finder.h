// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndexList>
#include <QObject>

class DiagramSession;
class QLineEdit;
class QPushButton;
class ReplaceFindDialog;

/**
 * Makes the library's find dialog useful: every search goes on to the next subject that was found,
 * and replacing renames subjects, each as a step that can be undone.
 */
class Finder : public QObject
{
    Q_OBJECT

public:
    Finder(DiagramSession *session, QWidget *window);

    /** From now on searches the diagram of @p session. */
    void setSession(DiagramSession *session);
    /** Shows the dialog. */
    void show();

Q_SIGNALS:
    /** What was found or replaced, for the user. */
    void message(const QString &text);

private:
    void showNext();
    void replaceCurrent();
    void replaceAll();
    bool rename(const QModelIndex &index);
    QPushButton *button(const QString &text) const;
    QLineEdit *field(const QString &label) const;
    Qt::CaseSensitivity caseSensitivity() const;

    DiagramSession *m_session;
    ReplaceFindDialog *m_dialog;
    QModelIndexList m_matches; ///< of the latest search, only to be compared
    int m_current = -1;        ///< the match that is selected
};
