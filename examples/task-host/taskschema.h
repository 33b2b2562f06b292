// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSqlDatabase>
#include <QStringList>

/**
 * The tables, and how those of earlier versions become those of this one.
 *
 * Version 1 had the tasks alone. Version 2 says of each when and by whom it was written. Version 3
 * keeps what happened to which task, so that others learn of removals.
 */
namespace TaskSchema {

/** The version that this host writes. */
int version();
/** The statements that lead from version @p from to the next one. */
QStringList migration(int from);
/**
 * Brings the tables of @p database to version(), within the transaction of the caller. Returns why
 * that cannot be, an empty text when it was done: a version that is newer than version() is
 * refused.
 */
QString migrate(QSqlDatabase &database);

} // namespace TaskSchema
