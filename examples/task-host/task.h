// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/** One task as the data base has it: a row. */
struct Task
{
    QString uuid;
    QString parent;      ///< the uuid of the task above, empty for the head of a diagram
    qint64 position = 0; ///< among its siblings; of two with the same, the lesser uuid comes first
    QJsonObject fields;  ///< title, status, people, dates …, as TaskFields::of() makes them
    qint64 version = 0;  ///< the revision of the data base in which the row changed last
    QString author;      ///< who changed it then

    /** Whether both stand in the same place. */
    bool isPlacedAs(const Task &other) const
    {
        return parent == other.parent && position == other.position;
    }
    /** The text of its bone. */
    QString title() const { return fields.value(QLatin1String("title")).toString(); }
};

/** Tasks by their uuids. */
using TaskMap = QHash<QString, Task>;
/** The uuids below each uuid, in order; those of the heads below the empty one. */
using TaskChildren = QHash<QString, QStringList>;
