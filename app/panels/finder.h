// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/drawingstate.h>
#include <app/panels/replacement.h>

#include <QModelIndexList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QTimer>

#include <memory>

class DiagramSession;
class EditAttributes;
class HitList;
class QLineEdit;
class ReplaceFindDialog;

/**
 * Makes the library's find dialog useful. What was found is listed in it, with what a replacement
 * would make of it, as one types; the first hit is shown at once, and the window steps aside from
 * it. Every search goes on to the next hit, and the list leads to any of them.
 * Replacing is a step of the undo history, one step for all of them, with progress and a button
 * that cancels it when it takes long. Esc ends the search and gives the drawing the look that it
 * had before.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectControls();
    void forgetHits();
    void listHits();
    void findSoon();
    void showNext();
    void showHit(int row);
    void keepClear();
    void followView();
    void replaceCurrent();
    void replaceAll();
    std::unique_ptr<EditAttributes> draftAll(const QModelIndexList &hits);
    int run(std::unique_ptr<EditAttributes> command);
    void preview();
    void rememberLook();
    void restoreLook();
    QString replaced(const QString &text) const;
    Replacement replacement() const;

    DiagramSession *m_session;
    ReplaceFindDialog *m_dialog;
    HitList *m_hits;
    QLineEdit *m_search;
    QLineEdit *m_replacement;
    QTimer m_aside;                               ///< runs when the dialog may cover the hit
    QList<QMetaObject::Connection> m_connections; ///< to the view
    QTimer m_typing;                              ///< runs until the user pauses
    QModelIndexList m_matches;                    ///< that are listed, only to be compared
    int m_current = -1;                           ///< the match that is selected
    DrawingState m_look;                          ///< of the drawing before the search
    QPersistentModelIndex m_searchedFrom;         ///< the head of the drawing then
};
