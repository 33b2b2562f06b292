// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What became of the things in a file that no field of a subject holds.
 *
 * A reader or writer notes each of them; equal ones are counted. The report is bounded: after
 * maximalEntries different things the others of a kind count as one.
 */
class FISHBONE_EXPORT ExchangeReport
{
    Q_DECLARE_TR_FUNCTIONS(ExchangeReport)

public:
    /** What became of it. */
    enum class Kind {
        LeftOut,    ///< content that is lost
        InDetails,  ///< a line of the details of its subject holds it
        ReadAs,     ///< a value of another meaning or form that was turned into one of a field
        Appearance, ///< only how something was drawn, which is lost
    };

    /** One thing, and how often it came. */
    struct Entry
    {
        Kind kind;       ///< what became of it
        QString what;    ///< for the user, translated
        int count = 0;   ///< how often it came
        qint64 line = 0; ///< where it came first; 0 where there are no lines
    };

    /** The different things that are told apart. */
    static constexpr int maximalEntries = 1000;

    /** Notes @p what once more; @p line is where it stands, 0 when that is unknown. */
    void add(Kind kind, const QString &what, qint64 line = 0);

    /** Everything, in the order in which it came first. */
    const QVector<Entry> &entries() const { return m_entries; }
    /** Whether there is nothing to say. */
    bool isEmpty() const { return m_entries.isEmpty(); }
    /** How many things of @p kind came, equal ones included. */
    int count(Kind kind) const;
    /** Whether content is lost. */
    bool losesContent() const { return count(Kind::LeftOut) > 0; }

    /** A line for each entry, for the user: the losses first, appearance last. */
    QStringList lines() const;

private:
    QVector<Entry> m_entries;
    QHash<QString, int> m_places; ///< of the entries, by kind and what
};
