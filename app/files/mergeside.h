// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class TreeItem;

/**
 * One version of a diagram that is merged with others, taken apart into its subjects. A key stands
 * for the same subject in all versions: its uuid or, for a subject that has none or shares it with
 * one before it, what it is called and where it stands. The empty key stands for what the head is
 * below.
 */
struct MergeSide
{
    /** A subject by itself. */
    struct Subject
    {
        QJsonObject fields; ///< of the diagram format, without those below it
        QString parent;     ///< its key
    };

    /** Takes the diagram of @p head apart, in linear time; null for none. */
    explicit MergeSide(TreeItem *head);

    bool has(const QString &key) const { return subjects.contains(key); }
    /** Whether the subject @p key, which is in both, has other fields or another parent here. */
    bool changes(const QString &key, const MergeSide &base) const;

    QHash<QString, Subject> subjects;
    QHash<QString, QStringList> children; ///< keys, by that of the parent, in display order
    QStringList order;                    ///< all keys, parents before those below them

private:
    QString keyOf(const QJsonObject &fields, const QString &parent);

    QHash<QString, int> m_sameNames; ///< how often a key was made of the same parent and title
};
