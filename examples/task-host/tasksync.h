// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <taskmerge.h>
#include <taskstore.h>

#include <fishbone/editor/fisheditor.h>

#include <QList>
#include <QPointer>
#include <QTimer>

class FishModel;
class WaitingJournal;

/**
 * Keeps a model and a data base the same.
 *
 * Whatever changes the model, be it an editor, undo, a drop or the host's own form, is found by
 * comparing the model with what the data base had last, and stored as one transaction when the call
 * that did it is through. What others have stored is merged into the model. While the data base
 * cannot be reached that difference is what waits: there is no queue that could be lost or come out
 * of order. With a journal it outlives the process.
 *
 * Both comparisons take time in proportion to the number of tasks.
 */
class TaskSync : public QObject
{
    Q_OBJECT

public:
    /** How often the data base is asked for news, in milliseconds. */
    static constexpr int pollInterval = 250;

    /** Neither is owned, and both have to outlive this. */
    TaskSync(FishModel &model, TaskStore &store, QObject *parent = nullptr);

    /** Keeps what waits in @p journal, which is not owned and has to outlive this; before start().
     */
    void setJournal(WaitingJournal *journal) { m_journal = journal; }
    /**
     * Fills the model with what the journal has and with the data base; false when that cannot be
     * reached now. Begins to poll.
     */
    bool start();
    /**
     * Has @p tasks be the first of a data base that has none; what others have put there meanwhile
     * stands in their place. No more than one host begins a data base, whoever starts at once.
     */
    void begin(const TaskMap &tasks);
    /** Has @p editor lay out when others have changed the model. */
    void addEditor(FishEditor *editor);

    /** Whether the data base has all that the model has. */
    bool isStored() const { return m_isStored; }
    /** Whether what waits, changes and conflicts, outlives this process. */
    bool isKept() const { return m_isKept; }
    /** Whether the data base could be reached last. */
    bool isOnline() const { return m_isOnline; }
    /** The revision that the model was brought up to. */
    qint64 revision() const { return m_revision; }
    /** The tasks as the data base had them at revision(). */
    const TaskMap &known() const { return m_known; }
    /** The tasks of the model; the version of those that wait to be stored is revision() + 1. */
    TaskMap current() const;

    /** What waits for a decision; until then theirs holds. */
    const QList<Conflict> &conflicts() const { return m_conflicts; }
    /** Settles a conflict: with mine the model takes it on, and it is stored as any other edit. */
    void settle(int conflict, bool keepsMine);

    /** Stores and fetches now; true when all is stored. */
    bool synchronize();
    /** Makes the model hold @p tasks, as if a user had edited them, and stores that. */
    void replace(const TaskMerge::Result &tasks);

Q_SIGNALS:
    /** All changes up to now are in the data base, which made them @p revision. */
    void stored(qint64 revision);
    /** Others have changed @p uuids; the model has it now. */
    void received(const QStringList &uuids);
    /** conflicts() has more or fewer. */
    void conflictsChanged();
    /** isStored() or isOnline() is another. */
    void stateChanged();

private:
    void connectModel();
    void noteChange();
    void poll();
    bool fetch();
    void takeUp();
    void keep();
    TaskStore::Outcome store();
    TaskMap baseFor(const TaskNews &news) const;
    void apply(const TaskMap &mine, const TaskMerge::Result &merged);
    void learn(const TaskBatch &batch, qint64 revision);
    void setState(bool isOnline, bool isStored);

    FishModel &m_model;
    TaskStore &m_store;
    WaitingJournal *m_journal = nullptr;
    QList<QPointer<FishEditor>> m_editors;
    QTimer m_soon;
    QTimer m_poll;
    TaskMap m_known;
    qint64 m_revision = 0;
    QList<TaskBatch> m_unanswered; // sent, and the connection broke
    QList<Conflict> m_conflicts;
    int m_polls = 0;
    bool m_isOnline = false;
    bool m_isStored = true;
    bool m_isChanged = false;
    bool m_isBusy = false;
    bool m_isJournalDue = false; // what waits may be another than the journal has
    bool m_isKept = false;
};
