// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <deskmodel.h>
#include <tasksync.h>
#include <undogroup.h>

#include <QNetworkAccessManager>
#include <QObject>

#include <memory>
#include <vector>

class BoardWindow;
class QUrl;
class TaskWindow;
class WaitingJournal;

/**
 * The host: the data base, the one model of all diagrams, and the windows on it.
 *
 * It owns all of them, and ends the windows before the model that they show.
 */
class TaskDesk : public QObject
{
    Q_OBJECT

public:
    /** A desk on the data base at @p address, see TaskStore, for @p author. */
    TaskDesk(const QString &address, const QString &author, QObject *parent = nullptr);
    ~TaskDesk() override;

    /** Keeps what waits for the data base in a file in @p folder; before start(). */
    void setJournalFolder(const QString &folder);
    /**
     * Loads what there is and opens the windows: the board, and the first diagram. An empty data
     * base gets the template diagram, or nothing with @p hasTemplate false. False when the data
     * base cannot be reached; the desk goes on trying.
     */
    bool start(bool hasTemplate = true);

    FishModel &model() { return m_model; }
    TaskSync &sync() { return m_sync; }
    TaskStore &store() { return m_store; }
    UndoGroup &undoGroup() { return m_undoGroup; }
    /** The windows with diagrams. */
    QList<TaskWindow *> windows() const;
    /** The window with all tasks; null before start(). */
    BoardWindow *board() const { return m_board.get(); }

    /** Shows the task @p uuid in the window of its diagram, in a new one where none shows it. */
    TaskWindow *openTask(const QString &uuid);
    /** A link to the task @p uuid that this host opens by itself. */
    static QUrl addressOf(const QString &uuid);

    /** The diagram that @p index is in as a document to be edited elsewhere. */
    QByteArray documentOf(const QModelIndex &index) const;
    /** Merges such a document, or any other diagram. */
    void merge(const QByteArray &document);
    /** Fetches a document and merges it, by this host's access manager; then merged() comes. */
    void mergeFrom(const QUrl &url);

Q_SIGNALS:
    /** mergeFrom() has ended; @p error is empty when it went well. */
    void merged(const QString &error);

private:
    void openLink(const QUrl &url);
    void showFirstDiagram();
    void beginWithTemplate();
    TaskWindow *windowOf(const FishInfo *document) const;

    DeskModel m_model;
    TaskStore m_store;
    std::unique_ptr<WaitingJournal> m_journal;
    TaskSync m_sync;
    UndoGroup m_undoGroup;
    QNetworkAccessManager m_network;
    std::unique_ptr<BoardWindow> m_board;
    std::vector<std::unique_ptr<TaskWindow>> m_windows;
};
