// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

/** A copy of a document that a run which did not end well has left. */
struct LeftCopy
{
    QString copy;     ///< the path of the copy
    QString original; ///< the path of the document's file, empty when it had none
    QString name;     ///< the name of the document
    QDateTime saved;  ///< when the copy was written
    qint64 size = 0;  ///< the copy's, in bytes
};

/**
 * The folder of the user in which the copies of unsaved changes are kept.
 *
 * A copy "x.json" has a note "x.info", which says whose it is, and as long as its owner lives a
 * lock "x.lock". A copy without a note, or with one that cannot be read, is that of an unnamed
 * document.
 */
namespace RecoveryStore {

/** The folder; not necessarily there. */
QString folder();

/** A path for a copy of the document @p name that no other copy has. The folder is made. */
QString newCopy(const QString &name);

/** The paths of the note and of the lock of the copy at @p copy. */
QString noteOf(const QString &copy);
QString lockOf(const QString &copy);

/** Writes the note that the copy at @p copy is that of the document @p name in the file @p
 * original; false when it cannot be written. */
bool writeNote(const QString &copy, const QString &original, const QString &name);

/** Removes the copy at @p copy and its note. */
void remove(const QString &copy);

/** The copies whose owner is gone, the latest first. Those that are the same as their document's
 * file are removed instead. */
QList<LeftCopy> left();

} // namespace RecoveryStore
