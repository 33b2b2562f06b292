// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class FishInfo;
class FishModel;
class TreeItem;

/**
 * The documents that a model owns, in the order of their rows. Each knows the model that lists it,
 * and its row, which is found in constant time. Announces nothing.
 */
class DocumentList
{
    Q_DISABLE_COPY(DocumentList)

public:
    /** The empty list of @p model. */
    explicit DocumentList(FishModel *model)
        : m_model(model)
    {
    }
    /** Deletes the documents. */
    ~DocumentList() { clear(); }

    const QList<FishInfo *> &all() const { return m_documents; }
    int count() const { return m_documents.size(); }
    /** The document in @p row, which there must be. */
    FishInfo *at(int row) const { return m_documents.at(row); }
    /** The head of the document in @p row; null when there is none. */
    TreeItem *headAt(int row) const;
    /** Whether @p document, which may be null, is listed here. */
    bool contains(const FishInfo *document) const;
    /** The row of @p document, -1 when it is not listed here or null. */
    int rowOf(const FishInfo *document) const;

    /** Lists @p document, which no model lists, at @p row, and takes it over. */
    void insert(int row, FishInfo *document);
    /** Hands out the document in @p row, without a model. */
    FishInfo *take(int row);
    /** Moves a document to the row where it stands afterwards. */
    void move(int from, int to);
    /**
     * Puts a new document in the place of @p dying, with its tree; @p dying is left without a model
     * and with an empty tree. Returns the new one.
     */
    FishInfo *replace(FishInfo *dying);
    /** Deletes the documents. */
    void clear();

private:
    void adopt(FishInfo *document, int row) const;

    FishModel *const m_model;
    QList<FishInfo *> m_documents;
    int m_firstNumber = 0; ///< as TreeItem has one for its children
};
