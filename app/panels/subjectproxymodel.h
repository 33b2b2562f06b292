// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishproxymodel.h>

/** The documents as the tree shows them: filtered by title, and with subjects that can be dragged.
 */
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
};
