// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/model/treeitem.h>

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct TableMapping;

/**
 * The tree that a reader builds, within the limits of DiagramExchange, what went wrong, and what
 * became of the things that no field holds.
 */
class ImportedTree
{
    Q_DISABLE_COPY(ImportedTree)

public:
    ImportedTree() = default;

    /**
     * Adds a subject below the latest one whose rank is lower than @p rank, at the top level when
     * there is none. Ranks are depths, indentations, or whatever orders the levels of a format.
     * @p line is where it stands. Null when there is no room for it, which fails the reading.
     */
    TreeItem *add(int rank, const QString &title, qint64 line);
    /** The subject that was added last; null when there is none. */
    TreeItem *last() const { return m_open.empty() ? nullptr : m_open.back().subject; }
    /** How many subjects there are. */
    int count() const { return m_count; }

    /** What the columns of a table shall stand for, which the user knows; null when nobody does. */
    const TableMapping *mapping() const { return m_mapping; }
    void setMapping(const TableMapping *mapping) { m_mapping = mapping; }

    /** The node whose children are the subjects of the top level. */
    TreeItem &container() { return *m_container; }
    /** The title of the head that is made when there are several subjects at the top level. */
    void setCommonTitle(const QString &title) { m_commonTitle = title; }

    /**
     * Puts @p text, which no field of @p subject holds, into its details, below what else is there
     * in the end. @p what names it in the report. An empty text is left alone.
     */
    void addDetail(const TreeItem &subject, const QString &text, const QString &what,
                   qint64 line = 0);
    /** Puts "@p name: @p value" into the details of @p subject. */
    void addNamedDetail(const TreeItem &subject, const QString &name, const QString &value,
                        qint64 line = 0);
    /** Puts what a formatted text has beside its words into the details of @p subject: its links,
     * the first of which becomes the subject's own when it has none, and the names of its pictures.
     */
    void addContent(TreeItem &subject, const QStringList &links, const QStringList &images,
                    qint64 line = 0);
    /** Notes what is not in the details either. */
    void note(ExchangeReport::Kind kind, const QString &what, qint64 line = 0);
    /** Everything that was noted. */
    const ExchangeReport &report() const { return m_report; }

    /** Fails the reading, for a reason that has to do with @p line; always false. */
    bool fail(qint64 line, const QString &reason);
    /** Fails the reading; always false. */
    bool fail(const QString &reason);
    /** Why the reading failed; empty while it has not. */
    const QString &error() const { return m_error; }

    /** The only subject at the top level; null, with an error, when there is none. */
    std::unique_ptr<TreeItem> takeAsItStands();
    /**
     * The head, which is made when there are several subjects at the top level. Every subject has a
     * uuid that no other one has, and the pid that goes with it. Null, with an error, when there is
     * no subject, or no room for a head.
     */
    std::unique_ptr<TreeItem> takeCompleted();
    /** As takeCompleted(), but the node whose children are the subjects at the top level. */
    std::unique_ptr<TreeItem> takeBranches();

private:
    void complete(TreeItem &head);

    struct Open
    {
        int rank;
        TreeItem *subject;
    };

    std::unique_ptr<TreeItem> m_container = std::make_unique<TreeItem>();
    std::vector<Open> m_open; ///< the last subject and all above it, the topmost first
    int m_levels = 0;
    int m_count = 0;
    QString m_commonTitle;
    QString m_error;
    QHash<const TreeItem *, QStringList> m_details; ///< to be added to what the subjects have
    ExchangeReport m_report;
    const TableMapping *m_mapping = nullptr;
};
