// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishproxymodel.h>

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

    /**
     * As the source's, and draggable when the subject may be moved. Heads cannot be dragged: a drop
     * is not undone, and would take the document with it.
     */
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /** Shows of the subjects below heads none but @p subjects, which are only compared; nothing for
     * all. */
    void setShown(const std::optional<QSet<const TreeItem *>> &subjects);
    /** Whether only some subjects are shown. */
    bool isRestricted() const { return m_shown.has_value(); }

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    std::optional<QSet<const TreeItem *>> m_shown;
};
