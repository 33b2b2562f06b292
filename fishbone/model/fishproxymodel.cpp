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
    bool ancestorsChanged = false; ///< since the base class was last told to filter again
    bool mappingCleared = false;   ///< by the base class, since the last move of source rows
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
    // The base class drops what it knows of the rows, and says so without the hint that sorting
    // has.
    connect(this, &QAbstractItemModel::layoutAboutToBeChanged, this,
            [this](const QList<QPersistentModelIndex> &, LayoutChangeHint hint) {
                if (hint != NoLayoutChangeHint)
                    return;
                m_memo->matches.clear();
                m_memo->mappingCleared = true;
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
    using Index = QModelIndex;
    SubtreeMatches &matches = m_memo->matches;
    bool &changed = m_memo->ancestorsChanged;
    const auto forget = [&matches, &changed] {
        matches.clear();
        changed = true;
    };
    const auto listen = [this, &source](auto signal, auto slot) {
        m_memo->connections.append(connect(&source, signal, this, slot));
    };
    listen(&Model::dataChanged, [&matches, &changed](const Index &first, const Index &last) {
        changed |= matches.rowsChanged(first.parent(), first.row(), last.row());
    });
    listen(&Model::rowsInserted, [&matches, &changed](const Index &parent, int first, int last) {
        changed |= matches.rowsInserted(parent, first, last);
    });
    listen(&Model::rowsAboutToBeRemoved, [&matches](const Index &parent, int first, int last) {
        matches.rowsGoing(parent, first, last);
    });
    listen(&Model::rowsRemoved,
           [&matches, &changed](const Index &parent) { changed |= matches.rowsGone(parent); });
    listen(&Model::rowsAboutToBeMoved, [this] { m_memo->mappingCleared = false; });
    // The base class, or else listenAfter(), drops the rows with it.
    listen(&Model::rowsMoved, [&matches] { matches.clear(); });
    listen(&Model::columnsInserted, forget);
    listen(&Model::columnsRemoved, forget);
    listen(&Model::columnsMoved, forget);
    listen(&Model::layoutChanged, forget);
    listen(&Model::modelReset, forget);
}

/** Connects what brings the ancestors of a change in step once the base class is done with it. */
void FishProxyModel::listenAfter(const QAbstractItemModel &source)
{
    using Model = QAbstractItemModel;
    // The base class skips moves between parents that are filtered out, but keeps what it knows of
    // their rows, which is wrong then.
    m_memo->connections.append(connect(&source, &Model::rowsMoved, this, [this] {
        if (!m_memo->mappingCleared)
            invalidate();
    }));
    const auto refilter = [this] {
        if (std::exchange(m_memo->ancestorsChanged, false) && dynamicSortFilter())
            QSortFilterProxyModel::invalidateFilter();
    };
    const auto listen = [this, &source, refilter](auto signal) {
        m_memo->connections.append(connect(&source, signal, this, refilter));
    };
    listen(&Model::dataChanged);
    listen(&Model::rowsInserted);
    listen(&Model::rowsRemoved);
    listen(&Model::columnsInserted);
    listen(&Model::columnsRemoved);
    listen(&Model::columnsMoved);
    listen(&Model::layoutChanged);
    listen(&Model::modelReset);
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
