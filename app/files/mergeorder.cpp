// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/mergeorder.h>

#include <QHash>
#include <QSet>

namespace {

using KeySet = QSet<QString>;

KeySet keySet(const QStringList &keys)
{
    KeySet set;
    for (const QString &key : keys)
        set.insert(key);
    return set;
}

QStringList onlyOf(const QStringList &keys, const KeySet &wanted)
{
    QStringList rest;
    for (const QString &key : keys) {
        if (wanted.contains(key))
            rest.append(key);
    }
    return rest;
}

/** The members of @p keys that are not @p shared, by the shared one that they follow. */
QHash<QString, QStringList> runsOf(const QStringList &keys, const KeySet &members,
                                   const KeySet &shared)
{
    QHash<QString, QStringList> runs;
    QString before;
    for (const QString &key : keys) {
        if (shared.contains(key))
            before = key;
        else if (members.contains(key))
            runs[before].append(key);
    }
    return runs;
}

} // namespace

MergeOrder::MergeOrder(const QStringList &members, const QStringList &base, const QStringList &ours,
                       const QStringList &theirs)
{
    const KeySet here = keySet(members);
    const QStringList sharedTheirs = onlyOf(onlyOf(theirs, here), keySet(ours));
    const KeySet shared = keySet(sharedTheirs);
    QStringList backbone = onlyOf(ours, shared);
    if (backbone != sharedTheirs) {
        const QStringList before = onlyOf(base, shared);
        const KeySet known = keySet(before);
        const bool movesOurs = onlyOf(backbone, known) != before;
        const bool movesTheirs = onlyOf(sharedTheirs, known) != before;
        isConflict = movesOurs == movesTheirs;
        if (movesTheirs && !movesOurs)
            backbone = sharedTheirs;
    }
    const auto runsOurs = runsOf(ours, here, shared);
    const auto runsTheirs = runsOf(theirs, here, shared);
    backbone.prepend(QString()); // what stands before all that is shared
    for (const QString &key : qAsConst(backbone)) {
        if (!key.isEmpty())
            keys.append(key);
        const QStringList first = runsOurs.value(key);
        const QStringList second = runsTheirs.value(key);
        const bool swaps = !first.isEmpty() && !second.isEmpty() && second.at(0) < first.at(0);
        keys += swaps ? second + first : first + second;
    }
    const KeySet placed = keySet(keys);
    for (const QString &key : members) {
        if (!placed.contains(key)) // neither version has it below this subject
            keys.append(key);
    }
}
