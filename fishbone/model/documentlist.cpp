// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/documentlist.h>

#include <fishbone/model/fishinfo_p.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/rownumbers.h>
#include <fishbone/model/treeitem.h>

#include <utility>

TreeItem *DocumentList::headAt(int row) const
{
    const FishInfo *const document = m_documents.value(row, nullptr);
    return document ? document->treeItem()->childAtIndex(0) : nullptr;
}

bool DocumentList::contains(const FishInfo *document) const
{
    return document && document->m_d->owner == m_model;
}

int DocumentList::rowOf(const FishInfo *document) const
{
    if (!contains(document))
        return -1;
    return RowNumbers::find(
        m_firstNumber, document->m_d->rowNumber, m_documents.size(),
        [this, document](int row) { return m_documents.at(row) == document; },
        [this](int row, int number) { m_documents.at(row)->m_d->rowNumber = number; });
}

/** Makes the document that came to @p row the model's. */
void DocumentList::adopt(FishInfo *document, int row) const
{
    document->m_d->rowNumber = RowNumbers::numberOf(m_firstNumber, row);
    document->m_d->owner = m_model;
    document->setModel(m_model);
}

void DocumentList::insert(int row, FishInfo *document)
{
    RowNumbers::shift(m_firstNumber, row, 1, m_documents.size());
    m_documents.insert(row, document);
    adopt(document, row);
}

FishInfo *DocumentList::take(int row)
{
    FishInfo *const document = m_documents.takeAt(row);
    RowNumbers::shift(m_firstNumber, row, -1, m_documents.size());
    document->m_d->owner = nullptr;
    document->setModel(nullptr);
    return document;
}

void DocumentList::move(int from, int to)
{
    m_documents.move(from, to);
    for (int row = qMin(from, to); row <= qMax(from, to); ++row)
        m_documents.at(row)->m_d->rowNumber = RowNumbers::numberOf(m_firstNumber, row);
}

FishInfo *DocumentList::replace(FishInfo *dying)
{
    const int row = rowOf(dying);
    auto *const standIn = new FishInfo;
    standIn->m_d->swapTree(*dying->m_d);
    m_documents.replace(row, standIn);
    adopt(standIn, row);
    dying->m_d->owner = nullptr;
    return standIn;
}

void DocumentList::clear()
{
    const QList<FishInfo *> documents = std::exchange(m_documents, {});
    for (FishInfo *document : documents) {
        document->m_d->owner = nullptr;
        delete document;
    }
}
