// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QSortFilterProxyModel>

#include <memory>

/**
 * Shows the rows that the filter accepts, all their ancestors, and every top-level row.
 *
 * What a subtree holds is found out once for each filter: every row is asked a bounded number of
 * times however the rows nest, without recursion. A subclass may override filterAcceptsRow(), which
 * is also what is asked about descendants. Nothing is remembered beyond a change of the filter, be
 * it to the same one again, invalidate(), an announced change of the source and
 * FishModel::updateItem().
 *
 * Rows that appear, go, move or change their data bring their ancestors in step at once, unless
 * dynamicSortFilter is off.
 *
 * The filter looks as far down as the source goes, so the source must be complete: rows that are
 * fetched later count when they arrive.
 */
class FISHBONE_EXPORT FishProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /** A proxy without a source. */
    explicit FishProxyModel(QObject *parent = nullptr);
    ~FishProxyModel() override;

    void setSourceModel(QAbstractItemModel *sourceModel) override;

    /**
     * True when the filter accepts the row itself, when the row is at the top level, or when any of
     * its descendants is accepted.
     */
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

protected:
    /** To be called by a subclass when its own rule changes; the filter's settings are followed. */
    void invalidateFilter();

private:
    struct Memo;

    void listenBefore(const QAbstractItemModel &source);
    void listenAfter(const QAbstractItemModel &source);
    void followRows(const QModelIndex &parent, int first, int last, bool mayHaveGone);
    QModelIndex shownIndex(const QModelIndex &sourceIndex) const;

    std::unique_ptr<Memo> m_memo;
};
