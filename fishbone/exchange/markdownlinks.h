// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>

class ImportedTree;

/** The links that a document defines in lines of their own, "[1]: https://example.org", to name
 * them in its titles. */
class MarkdownLinks
{
public:
    /** Finds the definitions in @p text. */
    explicit MarkdownLinks(const QString &text);

    /** Where the links lead, by their names in small letters. */
    const QHash<QString, QString> &targets() const { return m_targets; }
    /** Whether @p line defines a link. */
    static bool isDefinition(const QString &line);
    /** Notes that subjects have the links @p targets. */
    void noteUsed(const QStringList &targets);
    /** Puts the definitions that no title uses into the details of the head of @p tree. */
    void keepUnused(ImportedTree &tree) const;

private:
    QHash<QString, QString> m_targets;
    QStringList m_names; ///< in the order of the document
    QSet<QString> m_used;
};
