// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <taskmerge.h>
#include <taskstore.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

class QLockFile;

/**
 * What of a host's work waits for the data base, in a file of the user's own, so that it outlives
 * the process.
 *
 * Each process writes a file of its own, whole or not at all, and holds a lock on it while it
 * lives. A file whose lock nobody holds was left by a process that has ended, well or not; whoever
 * starts next on the same data base takes it over. Writing takes time in proportion to the number
 * of tasks.
 */
class WaitingJournal
{
    Q_DISABLE_COPY(WaitingJournal)

public:
    /** All that a host has to know to go on where it was. */
    struct Entry
    {
        qint64 revision = 0;         ///< the one that the model was brought up to
        TaskMap known;               ///< the tasks as the data base had them then
        TaskMap mine;                ///< the tasks of the model
        QList<TaskBatch> unanswered; ///< sent, and the connection broke
        QList<Conflict> conflicts;   ///< that nobody has settled
    };

    /** The journals in @p folder of the data base at @p address, see TaskStore. */
    WaitingJournal(const QString &folder, const QString &address);
    ~WaitingJournal();

    /**
     * What processes that have ended left, the newest revision first. The files stay, and are
     * nobody else's, until removeLeft().
     */
    QList<Entry> left();
    /** Removes what left() has returned, which is in another file now. */
    void removeLeft();
    /** Makes @p entry the content of the own file; false when that cannot be. */
    bool write(const Entry &entry);
    /** Removes the own file: nothing waits. */
    void clear();

private:
    struct File;

    std::unique_ptr<File> open(const QString &path) const;

    const QString m_folder;
    const QString m_prefix; // of the names of all journals of this data base
    std::unique_ptr<File> m_own;
    std::vector<std::unique_ptr<File>> m_left;
    QByteArray m_written;
};
