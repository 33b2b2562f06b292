// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What the columns of a table of tasks stand for.
 *
 * A reader finds that out of the headings, which task lists of many programs have in the languages
 * that this one speaks; a user may know better.
 */
struct FISHBONE_EXPORT TableMapping
{
    Q_DECLARE_TR_FUNCTIONS(TableMapping)

public:
    /** What a column stands for. */
    enum class Role {
        Other,       ///< nothing that a subject has a field for: its values go to the details
        Title,       ///< the title
        Path,        ///< one of several columns, a level each, that hold the titles
        Id,          ///< what the row is called, and what other rows call it
        Uuid,        ///< as Id, and the identity of the subject
        ShortId,     ///< as Id, for people
        Parent,      ///< the Id or the title of the row above
        Level,       ///< the depth as a number
        Outline,     ///< the place in the tree, "1.2.3"
        Status,      ///< a number or a word
        Progress,    ///< in percent
        Priority,    ///< a number, 1 for the highest, or a word
        Manager,     ///< who is to do it
        ManagerId,   ///< and what they are called by a program
        Creator,     ///< who wrote it down
        CreatorId,   ///< and what they are called by a program
        Followers,   ///< who wants to hear of it
        Created,     ///< a date
        PlannedEnd,  ///< a date
        Url,         ///< a link
        Detail,      ///< a longer text
        Type,        ///< a number
        CompletedAt, ///< a date: what has one is finished
        Verdict,     ///< what has been found out about a cause, a word
        Votes,       ///< how many hold it for the likeliest
    };

    /** All roles that a user may choose among, Other first. */
    static QList<Role> allRoles();
    /** The name of @p role for the user, translated. */
    static QString nameOf(Role role);
    /** The roles of columns with these headings, as far as the headings tell them. */
    static QVector<Role> guessed(const QStringList &headings);
    /** Whether @p roles have a column of titles, without which a table is no diagram. */
    static bool hasTitles(const QVector<Role> &roles);

    QStringList headings;          ///< of the columns
    QVector<Role> roles;           ///< one for each column
    QVector<QStringList> examples; ///< the first rows
};
