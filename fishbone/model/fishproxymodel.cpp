// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishproxymodel.h>

#include <fishbone/model/filteranswers.h>

#include <QVector>

#include <algorithm>

/** What is known about the source's rows, and what is listened to. */
struct FishProxyModel::Memo
{
    explicit Memo(const FishProxyModel &proxy)
        : answers(
              [&proxy](int row, const QModelIndex &parent) {
                  return proxy.QSortFilterProxyModel::filterAcceptsRow(row, parent);
              },
              [&proxy](int row, const QModelIndex &parent) {
                  return proxy.filterAcceptsRow(row, parent);
              })
    {
    }

    FilterAnswers answers;
    bool mappingCleared = false; ///< by the base class, since the last move of source rows
    QVector<QMetaObject::Connection> connections;
};

FishProxyModel::FishProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_memo(std::make_unique<Memo>(*this))
{
    // The base class drops what it knows of the rows, and says so without the hint that sorting
    // has.
    connect(this, &QAbstractItemModel::layoutAboutToBeChanged, this,
            [this](const QList<QPersistentModelIndex> &, LayoutChangeHint hint) {
                if (hint != NoLayoutChangeHint)
                    return;
                m_memo->answers.clear();
                m_memo->mappingCleared = true;
            });
}

FishProxyModel::~FishProxyModel() = default;

void FishProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    for (const QMetaObject::Connection &connection : std::as_const(m_memo->connections))
        disconnect(connection);
    m_memo->connections.clear();
    m_memo->answers.setSource(sourceModel);
    if (sourceModel)
        listenBefore(*sourceModel);
    QSortFilterProxyModel::setSourceModel(sourceModel);
    if (sourceModel)
        listenAfter(*sourceModel);
}

/** Connects what must know of a change before the base class asks about rows again. */
void FishProxyModel::listenBefore(const QAbstractItemModel &source)
{
    using Model = QAbstractItemModel;
    const auto listen = [this, &source](auto signal) {
        m_memo->connections.append(
            connect(&source, signal, this, [this] { m_memo->answers.clear(); }));
    };
    listen(&Model::dataChanged);
    listen(&Model::rowsInserted);
    listen(&Model::rowsAboutToBeRemoved);
    listen(&Model::rowsRemoved);
    listen(&Model::rowsMoved);
    listen(&Model::columnsInserted);
    listen(&Model::columnsRemoved);
    listen(&Model::columnsMoved);
    listen(&Model::layoutChanged);
    listen(&Model::modelReset);
    m_memo->connections.append(connect(&source, &Model::rowsAboutToBeMoved, this,
                                       [this] { m_memo->mappingCleared = false; }));
}

/** Connects what brings the ancestors of a change in step once the base class is done with it. */
void FishProxyModel::listenAfter(const QAbstractItemModel &source)
{
    using Model = QAbstractItemModel;
    using Index = QModelIndex;
    const auto listen = [this, &source](auto signal, auto slot) {
        m_memo->connections.append(connect(&source, signal, this, slot));
    };
    // The base class skips moves between parents that are filtered out, but keeps what it knows of
    // their rows, which is wrong then.
    listen(&Model::rowsMoved, [this] {
        if (!m_memo->mappingCleared)
            invalidate();
    });
    listen(&Model::dataChanged, [this](const Index &first, const Index &last) {
        followRows(first.parent(), first.row(), last.row(), true);
    });
    listen(&Model::rowsInserted, [this](const Index &parent, int first, int last) {
        followRows(parent, first, last, false);
    });
    listen(&Model::rowsRemoved, [this](const Index &parent) { followRows(parent, 0, -1, true); });
    const auto refilter = [this] {
        if (dynamicSortFilter())
            QSortFilterProxyModel::invalidateFilter();
    };
    listen(&Model::columnsInserted, refilter);
    listen(&Model::columnsRemoved, refilter);
    listen(&Model::columnsMoved, refilter);
    listen(&Model::layoutChanged, refilter);
    listen(&Model::modelReset, refilter);
}

/**
 * Filters again when the ancestors of rows that came or changed, or of rows that are gone, would
 * not be shown as they are. @p mayHaveGone says whether an accepted row may be none any more.
 */
void FishProxyModel::followRows(const QModelIndex &parent, int first, int last, bool mayHaveGone)
{
    if (!dynamicSortFilter() || !parent.isValid() || !parent.parent().isValid())
        return; // what is at the top is always shown
    bool isAnyAccepted = false;
    for (int row = first; row <= last && !isAnyAccepted; ++row)
        isAnyAccepted = filterAcceptsRow(row, parent);
    if (!isAnyAccepted && !mayHaveGone)
        return;
    const QModelIndex shown = shownIndex(parent);
    const bool isInStep = isAnyAccepted ? shown.isValid()
                                        : !shown.isValid() || rowCount(shown) > 0 ||
                                              filterAcceptsRow(parent.row(), parent.parent());
    if (!isInStep)
        QSortFilterProxyModel::invalidateFilter();
}

/** As mapFromSource(), but asks about nothing below a row that is not shown. */
QModelIndex FishProxyModel::shownIndex(const QModelIndex &sourceIndex) const
{
    QVector<QModelIndex> path;
    for (QModelIndex index = sourceIndex; index.isValid(); index = index.parent())
        path.append(index);
    QModelIndex shown;
    for (auto index = path.crbegin(); index != path.crend(); ++index) {
        shown = mapFromSource(*index);
        if (!shown.isValid())
            break;
    }
    return shown;
}

bool FishProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    FilterAnswers &answers = m_memo->answers;
    if (!sourceParent.isValid()) {
        // Nothing tells that there is another filter, but whoever changes it, or drops what is
        // known, makes the base class ask about the top first.
        answers.clear();
        return true;
    }
    if (!sourceModel() || !sourceParent.internalPointer())
        return true;
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    if (!index.isValid())
        return true;
    if (answers.isEmpty())
        rowCount(); // makes the base class know the top, and so ask about it
    answers.followSilentChanges();
    return answers.rule(index) || answers.below(index);
}

void FishProxyModel::invalidateFilter()
{
    m_memo->answers.clear();
    QSortFilterProxyModel::invalidateFilter();
}
