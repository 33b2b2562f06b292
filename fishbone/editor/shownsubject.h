// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QPersistentModelIndex>
#include <QPointer>

class FishInfo;
class FishModel;
class TreeItem;

/** Which subject of which model an editor shows. */
class ShownSubject
{
public:
    /** The model that was set last; null when it has died. What is shown may be from another. */
    QAbstractItemModel *model() const { return m_model; }
    void setModel(QAbstractItemModel *model) { m_model = model; }
    /** The model, when it is one of documents. */
    FishModel *fishModel() const;

    /** The shown subject; invalid when there is none. */
    const QPersistentModelIndex &index() const { return m_index; }
    void setIndex(const QModelIndex &index) { m_index = index; }
    /** Whether the subject that is shown is one of the model. */
    bool isOfModel() const;
    /** The document that holds it; null when the model has none such. */
    FishInfo *document() const;

    /** The index of the model that @p index, of any model, stands for; invalid for none. */
    QModelIndex ownIndex(QModelIndex index) const;
    /** The subject of such an index; null for none. */
    TreeItem *subjectOf(const QModelIndex &index) const;

private:
    QPointer<QAbstractItemModel> m_model;
    QPersistentModelIndex m_index;
};
