// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

class DocumentList;

/** What the parts of a FishModel that carry out its operations ask all of them. */
class FISHBONE_NO_EXPORT FishModel::Part
{
    Q_DISABLE_COPY(Part)

protected:
    explicit Part(FishModel &model)
        : m_model(model)
    {
    }
    ~Part() = default;

    DocumentList &documents() const;
    Announcer &announcer() const;
    /** The number of rows below @p node, null for the top level. */
    int rowsBelow(const TreeItem *node) const;
    /** The node behind @p parent, null for the top level; false for an index of another model. */
    bool resolve(const QModelIndex &parent, TreeItem **node) const;
    /** The model that lists @p document, which may be null. */
    static FishModel *ownerOf(const FishInfo *document);
    /** Whether @p item is a subject, and in no model. */
    static bool canEnter(const TreeItem *item);

    FishModel &m_model;
};
