// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QList>
#include <QStringList>

class TreeItem;

/**
 * Subjects with all below them as the copy buffer and the commands have them: one as its node
 * object, several as an array "children", none as the empty object.
 */
namespace SubjectSnapshot {

/** That of @p subjects, in their order. Those without a uuid, and their parents, are given one. */
QJsonObject of(const QList<TreeItem *> &subjects);
/** The uuids of the subjects of a snapshot, without those below them. */
QStringList uuids(const QJsonObject &snapshot);

} // namespace SubjectSnapshot
