// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>

#include <fishbone/base/guardedpointer.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

/**
 * How a command knows a subject, whose index and node may come and go between redo() and undo().
 *
 * Uuids tell subjects apart as a rule, but the same file may be open twice, and copies may share
 * the uuid of their original. So the document and the node serve as hints: among subjects of the
 * same uuid the very node is meant, then one of that document.
 */
struct SubjectKey
{
    QString uuid = TreeItem::noIdentity();
    QPointer<FishInfo> document;
    GuardedPointer<TreeItem> node;

    /** Whether the uuid is the end of that of @p subject, in any case. */
    bool endsUuidOf(const TreeItem &subject) const
    {
        return subject.uuid().endsWith(uuid, Qt::CaseInsensitive);
    }
};
