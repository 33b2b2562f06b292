// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tasksync.h>

#include <modeltree.h>
#include <tasktree.h>
#include <waitingjournal.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QScopedValueRollback>
#include <QUuid>

namespace {

/** What leads from @p known to @p mine. */
TaskBatch difference(const TaskMap &known, const TaskMap &mine)
{
    TaskBatch batch;
    batch.id = QUuid::createUuid().toString();
    for (const Task &task : mine) {
        const auto former = known.constFind(task.uuid);
        if (former == known.cend() || !former->isPlacedAs(task) || former->fields != task.fields)
            batch.written.append(task);
    }
    for (const Task &task : known) {
        if (!mine.contains(task.uuid))
            batch.removed.append(task.uuid);
    }
    return batch;
}

void carryOut(TaskMap &tasks, const TaskBatch &batch)
{
    for (const QString &uuid : batch.removed)
        tasks.remove(uuid);
    for (const Task &task : batch.written)
        tasks.insert(task.uuid, task);
}

} // namespace

TaskSync::TaskSync(FishModel &model, TaskStore &store, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_store(store)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    m_poll.setInterval(pollInterval);
    connect(&m_soon, &QTimer::timeout, this, &TaskSync::synchronize);
    connect(&m_poll, &QTimer::timeout, this, &TaskSync::poll);
    connect(&m_store, &TaskStore::newsAvailable, &m_soon, qOverload<>(&QTimer::start));
    connectModel();
}

void TaskSync::connectModel()
{
    using Model = QAbstractItemModel;
    connect(&m_model, &Model::dataChanged, this, &TaskSync::noteChange);
    connect(&m_model, &Model::rowsInserted, this, &TaskSync::noteChange);
    connect(&m_model, &Model::rowsRemoved, this, &TaskSync::noteChange);
    connect(&m_model, &Model::rowsMoved, this, &TaskSync::noteChange);
    connect(&m_model, &Model::layoutChanged, this, &TaskSync::noteChange);
    connect(&m_model, &Model::modelReset, this, &TaskSync::noteChange);
    connect(&m_model, &FishModel::nodeChanged, this, &TaskSync::noteChange);
}

void TaskSync::noteChange()
{
    if (m_isBusy)
        return;
    m_isChanged = true;
    m_isJournalDue = true;
    setState(m_isOnline, false);
    m_soon.start();
}

bool TaskSync::start()
{
    m_poll.start();
    takeUp();
    return synchronize();
}

/** Goes on where processes were that ended while something waited. */
void TaskSync::takeUp()
{
    if (!m_journal)
        return;
    const QList<WaitingJournal::Entry> left = m_journal->left();
    for (const WaitingJournal::Entry &entry : left) {
        const TaskMap present = ModelTree::read(m_model, m_known);
        if (m_known.isEmpty()) { // the first one, and the newest
            m_known = entry.known;
            m_revision = entry.revision;
            apply(present, {entry.mine, {}});
        } else {
            apply(present, TaskMerge::merge(entry.known, present, entry.mine));
        }
        m_unanswered += entry.unanswered;
        m_conflicts += entry.conflicts;
    }
    if (left.isEmpty())
        return;
    noteChange();
    Q_EMIT conflictsChanged();
    keep();
    if (m_isKept)
        m_journal->removeLeft();
}

/** Brings the journal in line with what waits. */
void TaskSync::keep()
{
    if (!m_journal || !m_isJournalDue)
        return;
    m_isJournalDue = false;
    if (m_isStored && m_conflicts.isEmpty()) {
        m_journal->clear();
        m_isKept = true;
        return;
    }
    m_isKept = m_journal->write(
        {m_revision, m_known, ModelTree::read(m_model, m_known), m_unanswered, m_conflicts});
    m_isJournalDue = !m_isKept;
}

void TaskSync::begin(const TaskMap &tasks)
{
    TaskStore::Outcome outcome = TaskStore::Outcome::Outdated;
    while (outcome == TaskStore::Outcome::Outdated && m_known.isEmpty() && m_store.isOpen()) {
        // Whoever has written since makes this the wrong revision, and is looked at first.
        outcome = m_store.commit(difference({}, tasks), m_revision);
        synchronize();
    }
}

void TaskSync::addEditor(FishEditor *editor)
{
    m_editors.append(editor);
}

void TaskSync::poll()
{
    // A few edits, as that of a bone's style, are told by no signal.
    constexpr int pollsToLook = 8;
    if (++m_polls % pollsToLook == 0) {
        m_isChanged = true;
        m_isJournalDue = m_isJournalDue || !m_isStored;
    }
    if (m_isChanged || !m_store.isOpen() || m_store.latestRevision() != m_revision)
        synchronize();
}

bool TaskSync::synchronize()
{
    if (m_isBusy)
        return false;
    if (!m_store.isOpen())
        keep();                      // to connect may take its time
    constexpr int mostAttempts = 20; // then others have their turn, and the next poll goes on
    for (int i = 0; i < mostAttempts; ++i) {
        const bool isThere = m_store.open() && fetch();
        const TaskStore::Outcome outcome = isThere ? store() : TaskStore::Outcome::Failed;
        if (outcome != TaskStore::Outcome::Outdated) {
            setState(m_store.isOpen(), outcome == TaskStore::Outcome::Done);
            keep();
            return outcome == TaskStore::Outcome::Done;
        }
    }
    return false;
}

/** What the model and the data base had in common last, as far as that concerns @p news. */
TaskMap TaskSync::baseFor(const TaskNews &news) const
{
    TaskMap base = m_known;
    for (const TaskBatch &batch : m_unanswered) {
        if (news.batches.contains(batch.id))
            carryOut(base, batch);
    }
    return base;
}

bool TaskSync::fetch()
{
    TaskNews news;
    if (!m_store.readNews(m_revision, news))
        return false;
    if (news.revision < m_revision) {
        // Another data base has come in its place, or an old copy: nothing is known of it.
        m_known.clear();
        m_revision = 0;
        return fetch();
    }
    const bool hasNews = news.revision != m_revision;
    m_revision = news.revision;
    if (!hasNews)
        return true;
    m_isJournalDue = true;
    const TaskMap base = baseFor(news);
    for (const QString &uuid : std::as_const(news.removed))
        m_known.remove(uuid);
    for (const Task &task : std::as_const(news.written))
        m_known.insert(task.uuid, task);
    const TaskMap mine = ModelTree::read(m_model, base);
    apply(mine, TaskMerge::merge(base, m_known, mine));
    QStringList uuids = news.removed;
    for (const Task &task : std::as_const(news.written))
        uuids.append(task.uuid);
    Q_EMIT received(uuids);
    return true;
}

void TaskSync::apply(const TaskMap &mine, const TaskMerge::Result &merged)
{
    if (!difference(mine, merged.tasks).isEmpty()) {
        const QScopedValueRollback<bool> busy(m_isBusy, true);
        ModelTree::show(m_model, merged.tasks);
        for (const QPointer<FishEditor> &editor : std::as_const(m_editors)) {
            if (editor)
                editor->updateFish(false);
        }
    }
    if (merged.conflicts.isEmpty())
        return;
    m_conflicts += merged.conflicts;
    Q_EMIT conflictsChanged();
}

TaskMap TaskSync::current() const
{
    TaskMap tasks = ModelTree::read(m_model, m_known);
    const QList<Task> waiting = difference(m_known, tasks).written;
    for (const Task &task : waiting)
        tasks[task.uuid].version = m_revision + 1;
    return tasks;
}

TaskStore::Outcome TaskSync::store()
{
    m_isChanged = false;
    const TaskBatch batch = difference(m_known, ModelTree::read(m_model, m_known));
    if (batch.isEmpty()) {
        m_unanswered.clear();
        return TaskStore::Outcome::Done;
    }
    const TaskStore::Outcome outcome = m_store.commit(batch, m_revision);
    if (outcome == TaskStore::Outcome::Done)
        learn(batch, m_revision + 1);
    else if (outcome == TaskStore::Outcome::Unanswered)
        m_unanswered.append(batch);
    m_isJournalDue = true;
    m_isChanged = outcome != TaskStore::Outcome::Done;
    return outcome;
}

void TaskSync::learn(const TaskBatch &batch, qint64 revision)
{
    m_unanswered.clear();
    m_revision = revision;
    TaskBatch done = batch;
    for (Task &task : done.written) {
        task.version = revision;
        task.author = m_store.author();
    }
    carryOut(m_known, done);
    Q_EMIT stored(revision);
}

void TaskSync::setState(bool isOnline, bool isStored)
{
    const QList<FishInfo *> documents = m_model.fishList();
    for (FishInfo *document : documents)
        document->setModified(!isStored);
    if (isOnline == m_isOnline && isStored == m_isStored)
        return;
    m_isOnline = isOnline;
    m_isStored = isStored;
    Q_EMIT stateChanged();
}

void TaskSync::settle(int conflict, bool keepsMine)
{
    if (conflict < 0 || conflict >= m_conflicts.size())
        return;
    const Conflict settled = m_conflicts.takeAt(conflict);
    if (keepsMine) {
        TaskMap tasks = ModelTree::read(m_model, m_known);
        TaskMerge::keepMine(tasks, settled);
        replace({tasks, {}});
    }
    m_isJournalDue = true;
    m_soon.start(); // and the journal goes on without it
    Q_EMIT conflictsChanged();
}

void TaskSync::replace(const TaskMerge::Result &tasks)
{
    apply(ModelTree::read(m_model, m_known), tasks);
    noteChange();
}
