// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishproxymodel.h>

#include <QHash>
#include <QIcon>
#include <QSet>

#include <optional>

class TreeItem;

/** The documents as the tree shows them: filtered by title and by what else is wanted, and with
 * subjects that can be dragged. */
class SubjectProxyModel : public FishProxyModel
{
    Q_OBJECT

public:
    explicit SubjectProxyModel(QObject *parent = nullptr);

    /** As the source's, but the icon of a subject with a status is that of the status. */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /**
     * As the source's, editable, and draggable when the subject may be moved. Heads cannot be
     * dragged: a drop is not undone, and would take the document with it.
     */
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /** The path of the icon for the status of the subject at @p index; empty for none. */
    QString statusIcon(const QModelIndex &index) const;

    /** The name of that status; empty for none. */
    QString statusName(const QModelIndex &index) const;

    /** Shows of the subjects below heads none but @p subjects, which are only compared; nothing for
     * all. */
    void setShown(const std::optional<QSet<const TreeItem *>> &subjects);
    /** Whether only some subjects are shown. */
    bool isRestricted() const { return m_shown.has_value(); }

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    /** The title alone: nobody who looks at or listens to the tree wants identities. */
    bool filterAcceptsColumn(int sourceColumn, const QModelIndex &sourceParent) const override;

private:
    const TreeItem *subjectAt(const QModelIndex &index) const;

    mutable QHash<QString, QIcon> m_icons; ///< by their paths
    std::optional<QSet<const TreeItem *>> m_shown;
};
