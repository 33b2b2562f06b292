// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/files/mergeside.h>

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class TreeItem;

/**
 * Merges two versions of a diagram, ours and theirs, that were made from a third one, the base.
 *
 * What only one of them changed is taken over: fields, places, the order of subjects, new and
 * deleted ones. What both changed differently is as in ours, and what one deleted while the other
 * changed it, or has something new below it, stays: such a subject gets a cause, "Merge conflict",
 * whose details say what there is to decide. How the diagram is shown is no conflict: it is as in
 * ours. Without conflicts it makes no difference which version is ours and which is theirs.
 *
 * Takes time linear in the subjects of all three; where conflicting moves make circles, each of
 * these adds the way round it.
 */
class DiagramMerge
{
    Q_DECLARE_TR_FUNCTIONS(DiagramMerge)

public:
    /** Merges; @p base is null when both versions were begun separately. */
    DiagramMerge(TreeItem *base, TreeItem *ours, TreeItem *theirs);

    /** The head of the merged diagram. */
    std::unique_ptr<TreeItem> head() const;

    /** The conflicts, each with the title of its subject. */
    QStringList conflicts() const;

private:
    void decide(const QString &key);
    QString parentOf(const QString &key);
    QJsonObject fieldsOf(const QString &key);
    void keep(const QString &key);
    void keepParents();
    void breakCircles();
    QStringList restoreCircle(const QStringList &way, const QString &entry);
    void uniteHeads();
    void orderChildren();
    void addConflict(const QString &key, const QString &reason);
    std::unique_ptr<TreeItem> causeFor(const QString &key) const;

    const MergeSide m_base;
    const MergeSide m_ours;
    const MergeSide m_theirs;
    QHash<QString, MergeSide::Subject> m_merged;
    QHash<QString, QStringList> m_children;  ///< of the merged ones, in display order
    QHash<QString, QStringList> m_conflicts; ///< by the key of the subject
    QStringList m_order;                     ///< the merged ones, ours first
};
