// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishproxymodel.h>

#include <fishbone/model/subtreematches.h>

#include <QRegularExpression>
#include <QVector>

/** What is known about the source's rows, and under which filter it was found out. */
struct FishProxyModel::Memo
{
    explicit Memo(const FishProxyModel &proxy)
        : matches([&proxy](int row, const QModelIndex &parent) {
            return proxy.QSortFilterProxyModel::filterAcceptsRow(row, parent);
        })
    {
    }

    /** Forgets everything when the filter is another one than before. */
    void follow(const FishProxyModel &proxy);

    SubtreeMatches matches;
    bool ancestorsChanged = false;
    QVector<QMetaObject::Connection> connections;

private:
    QRegularExpression m_expression;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QRegExp m_pattern; // the other kind of filter that Qt 5 has
#endif
    Qt::CaseSensitivity m_caseSensitivity = Qt::CaseSensitive;
    int m_column = 0;
    int m_role = Qt::DisplayRole;
};

void FishProxyModel::Memo::follow(const FishProxyModel &proxy)
{
    // Qt has no signal for a new filter, but asks about rows as soon as there is one.
    bool same = m_column == proxy.filterKeyColumn() && m_role == proxy.filterRole() &&
                m_caseSensitivity == proxy.filterCaseSensitivity() &&
                m_expression == proxy.filterRegularExpression();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    same = same && m_pattern == proxy.filterRegExp();
#endif
    if (same)
        return;
    matches.clear();
    m_column = proxy.filterKeyColumn();
    m_role = proxy.filterRole();
    m_caseSensitivity = proxy.filterCaseSensitivity();
    m_expression = proxy.filterRegularExpression();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    m_pattern = proxy.filterRegExp();
#endif
}

FishProxyModel::FishProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_memo(std::make_unique<Memo>(*this))
{
    // invalidate() and changes of the source's layout come without a sort hint; the mapping is gone
    // then.
    connect(this, &QAbstractItemModel::layoutAboutToBeChanged, this,
            [this](const QList<QPersistentModelIndex> &, LayoutChangeHint hint) {
                if (hint == NoLayoutChangeHint)
                    m_memo->matches.clear();
            });
}

FishProxyModel::~FishProxyModel() = default;

void FishProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    for (const QMetaObject::Connection &connection : std::as_const(m_memo->connections))
        disconnect(connection);
    m_memo->connections.clear();
    m_memo->matches.setSource(sourceModel);
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
    Memo &memo = *m_memo;
    const auto clear = [&memo] { memo.matches.clear(); };
    memo.connections << connect(&source, &Model::dataChanged, this,
                                [&memo](const QModelIndex &first, const QModelIndex &last) {
                                    memo.ancestorsChanged |= memo.matches.rowsChanged(
                                        first.parent(), first.row(), last.row());
                                })
                     << connect(&source, &Model::rowsInserted, this,
                                [&memo](const QModelIndex &parent, int first, int last) {
                                    memo.ancestorsChanged |=
                                        memo.matches.rowsInserted(parent, first, last);
                                })
                     << connect(&source, &Model::rowsAboutToBeRemoved, this,
                                [&memo](const QModelIndex &parent, int first, int last) {
                                    memo.matches.rowsGoing(parent, first, last);
                                })
                     << connect(&source, &Model::rowsRemoved, this,
                                [&memo](const QModelIndex &parent) {
                                    memo.ancestorsChanged |= memo.matches.rowsGone(parent);
                                })
                     << connect(&source, &Model::rowsMoved, this, clear)
                     << connect(&source, &Model::columnsInserted, this, clear)
                     << connect(&source, &Model::columnsRemoved, this, clear)
                     << connect(&source, &Model::columnsMoved, this, clear)
                     << connect(&source, &Model::layoutChanged, this, clear)
                     << connect(&source, &Model::modelReset, this, clear);
}

/** Connects what brings the ancestors of a change in step once the base class is done with it. */
void FishProxyModel::listenAfter(const QAbstractItemModel &source)
{
    using Model = QAbstractItemModel;
    const auto refilter = [this] {
        if (std::exchange(m_memo->ancestorsChanged, false) && dynamicSortFilter())
            QSortFilterProxyModel::invalidateFilter();
    };
    m_memo->connections << connect(&source, &Model::dataChanged, this, refilter)
                        << connect(&source, &Model::rowsInserted, this, refilter)
                        << connect(&source, &Model::rowsRemoved, this, refilter);
}

bool FishProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!sourceModel() || !sourceParent.isValid() || !sourceParent.internalPointer())
        return true;
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    if (!index.isValid())
        return true;
    m_memo->follow(*this);
    return m_memo->matches.contains(index);
}

void FishProxyModel::invalidateFilter()
{
    m_memo->matches.clear();
    QSortFilterProxyModel::invalidateFilter();
}
