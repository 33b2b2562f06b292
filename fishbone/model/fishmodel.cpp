// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/modelchange.h>
#include <fishbone/model/rownumbers.h>
#include <fishbone/model/treeitem.h>

#include <QBrush>
#include <QSet>

#include <array>
#include <utility>

namespace {

const std::array<QLatin1String, 5> headers = {QLatin1String("title"), QLatin1String("uuid"),
                                              QLatin1String("showid"), QLatin1String("pid"),
                                              QLatin1String("type")};

/**
 * Calls @p visit for @p top and everything below it, parents before children and siblings in their
 * order, until it returns false; whether it never did.
 */
template <typename Visitor>
bool visitPreOrder(TreeItem *top, Visitor visit)
{
    QList<TreeItem *> waiting{top};
    while (!waiting.isEmpty()) {
        TreeItem *const node = waiting.takeLast();
        if (!visit(node))
            return false;
        const QList<TreeItem *> &children = node->childItems();
        for (int i = children.size() - 1; i >= 0; --i)
            waiting.append(children.at(i));
    }
    return true;
}

} // namespace

FishModel::FishModel(QObject *parent)
    : DragDropModel(parent)
{
    join();
    qRegisterMetaType<MODEL_ERROR>();
    qRegisterMetaType<TreeItem *>();
}

FishModel::~FishModel()
{
    part();
    const QList<FishInfo *> documents = std::exchange(m_fishList, {});
    for (FishInfo *document : documents) {
        document->m_owner = nullptr;
        delete document;
    }
}

QModelIndex FishModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0)
        return QModelIndex();
    if (!parent.isValid()) {
        TreeItem *const head = headAt(row);
        return head ? createIndex(row, column, head) : QModelIndex();
    }
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, getTreeItem(parent)->childAtIndex(row));
}

QModelIndex FishModel::parent(const QModelIndex &index) const
{
    const TreeItem *const item = getTreeItem(index);
    const TreeItem *const above = item ? item->parent() : nullptr;
    // What has no parent is a document's container, which has no index.
    return above && above->parent() ? rowIndex(above) : QModelIndex();
}

int FishModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_fishList.size();
    const TreeItem *const item = parent.column() == 0 ? getTreeItem(parent) : nullptr;
    return item ? item->childCount() : 0;
}

int FishModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return int(headers.size());
}

QVariant FishModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= int(headers.size()))
        return QVariant();
    return QString(headers[std::size_t(section)]);
}

Qt::ItemFlags FishModel::flags(const QModelIndex &index) const
{
    return getTreeItem(index) ? QAbstractItemModel::flags(index) : Qt::NoItemFlags;
}

QVariant FishModel::data(const QModelIndex &index, int role) const
{
    const TreeItem *const item = getTreeItem(index);
    if (!item)
        return QVariant();
    const bool isHeadTitle = index.column() == 0 && item->isTopVaildItem();
    switch (role) {
    case Qt::DisplayRole:
        if (isHeadTitle && m_modelType == FISH_MODEL_NORMAL)
            return headText(item);
        return item->data(index.column());
    case Qt::DecorationRole:
        if (!item->isHaveParentTask())
            return QVariant();
        if (m_noParentIcon.isNull()) // until the host's picture is there
            m_noParentIcon = QIcon(QStringLiteral(":/fishboneDiagram/noparent.png"));
        return m_noParentIcon;
    case Qt::ToolTipRole:
        return isHeadTitle ? QVariant() : item->toolTipString();
    case Qt::ForegroundRole:
        return item->spearItemIsMovable() ? QVariant() : QBrush(Qt::red);
    default:
        return QVariant();
    }
}

/** A head's title with the counts, which are the first document's whichever head is asked about. */
QString FishModel::headText(const TreeItem *head) const
{
    const FishInfo *const first = m_fishList.value(0, nullptr);
    if (!first)
        return head->title(); // asked about a document that has left the model
    return head->title() + QLatin1Char('(') + QString::number(first->noParentNodeCount()) +
           tr("个无父任务/共") + QString::number(first->nodeCount()) + tr("个任务") +
           QLatin1Char(')');
}

bool FishModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TreeItem *const item = getTreeItem(index);
    if (!item || role != Qt::EditRole || !item->setData(index.column(), value))
        return false;
    tellData(index, index);
    return true;
}

void FishModel::updateItem(const QModelIndex &index, TreeItem *source)
{
    TreeItem *const item = getTreeItem(index);
    if (!item || !source)
        return;
    item->setTitle(source->title());
    item->setDetail(source->detail());
    item->setManagerName(source->managerName());
    item->setManagerId(source->managerId());
    item->setFollowers(source->followers());
    item->setPlanEndDate(source->planEndDate());
    item->setPriority(source->priority());
    item->setEditModified(true);
    ++m_silentChanges;
    stamp(item);
}

void FishModel::announceChange(const QModelIndex &index)
{
    if (getTreeItem(index))
        tellData(index.siblingAtColumn(0), index.siblingAtColumn(columnCount() - 1));
}

void FishModel::refreshModel()
{
    if (!isAnnouncing())
        const Change reset = resetting();
}

TreeItem *FishModel::headAt(int row) const
{
    const FishInfo *const document = m_fishList.value(row, nullptr);
    return document ? document->treeItem()->childAtIndex(0) : nullptr;
}

/** The row of the document whose container this is, -1 when none of this model's has it. */
int FishModel::containerRow(const TreeItem *container) const
{
    const FishInfo *const document = container->document();
    if (!document || document->m_owner != this)
        return -1;
    return RowNumbers::find(
        m_firstFishNumber, container->m_rowNumber, m_fishList.size(),
        [this, document](int row) { return m_fishList.at(row) == document; },
        [this](int row, int number) { m_fishList.at(row)->treeItem()->m_rowNumber = number; });
}

/** The row of a node of this model: its document's for a head. */
int FishModel::rowOf(const TreeItem *item) const
{
    return item->isTopVaildItem() ? containerRow(item->parent()) : item->index();
}

/** The index of a node of this model, and the invalid one for the top level. */
QModelIndex FishModel::rowIndex(const TreeItem *item) const
{
    return item ? createIndex(rowOf(item), 0, const_cast<TreeItem *>(item)) : QModelIndex();
}

int FishModel::fishRow(const FishInfo *document) const
{
    return document && document->m_owner == this ? containerRow(document->treeItem()) : -1;
}

FishInfo *FishModel::fishOf(const TreeItem *item) const
{
    FishInfo *const document = item ? item->root()->document() : nullptr;
    return document && document->m_owner == this ? document : nullptr;
}

QModelIndex FishModel::findFish(const QString &fileName) const
{
    for (int row = 0; row < m_fishList.size(); ++row) {
        if (m_fishList.at(row)->fileName() == fileName)
            return index(row, 0);
    }
    return QModelIndex();
}

TreeItem *FishModel::getTreeItem(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this
               ? static_cast<TreeItem *>(index.internalPointer())
               : nullptr;
}

TreeItem *FishModel::getParentTreeItem(const QModelIndex &index) const
{
    return getTreeItem(parent(index));
}

TreeItem *FishModel::getFishHeadTreeItem() const
{
    return headAt(0);
}

QModelIndex FishModel::indexFromItem(const TreeItem *item, int column) const
{
    const FishInfo *const document = fishOf(item);
    // Only the first child of a container is a head.
    if (!document || item == document->treeItem() || document->treeItem()->branchOf(item) != 0)
        return QModelIndex();
    return createIndex(rowOf(item), column, const_cast<TreeItem *>(item));
}

bool FishModel::contains(const TreeItem *item) const
{
    const auto differs = [item](const TreeItem *node) { return node != item; };
    for (int row = 0; row < m_fishList.size(); ++row) {
        TreeItem *const head = headAt(row);
        if (head && !visitPreOrder(head, differs))
            return true;
    }
    return false;
}

QModelIndex FishModel::modelIndexByUuid(const QString &uuid) const
{
    for (int row = 0; row < m_fishList.size(); ++row) {
        const TreeItem *found = nullptr;
        const auto differs = [&uuid, &found](const TreeItem *node) {
            if (node->uuid() == uuid)
                found = node;
            return !found;
        };
        TreeItem *const head = headAt(row);
        if (head && !visitPreOrder(head, differs))
            return rowIndex(found);
    }
    return QModelIndex();
}

QModelIndexList FishModel::searchModelIndexes(const QString &key) const
{
    QModelIndexList found;
    const auto collect = [this, &key, &found](const TreeItem *node) {
        if (node->title().contains(key, Qt::CaseInsensitive))
            found.append(rowIndex(node));
        return true;
    };
    for (int row = 0; row < m_fishList.size(); ++row) {
        if (TreeItem *const head = headAt(row))
            visitPreOrder(head, collect);
    }
    return found;
}

QModelIndexList FishModel::indexesFromRecords(const QVector<Record> &records) const
{
    // One walk over the tree for all of them: pointers from outside are compared, never followed.
    QSet<quintptr> unknown;
    for (const Record &record : records)
        unknown.insert(record.pointer);
    QSet<quintptr> known;
    const auto look = [&unknown, &known](TreeItem *node) {
        const auto pointer = reinterpret_cast<quintptr>(node);
        if (unknown.remove(pointer))
            known.insert(pointer);
        return !unknown.isEmpty();
    };
    for (int row = 0; row < m_fishList.size() && !unknown.isEmpty(); ++row) {
        if (TreeItem *const head = headAt(row))
            visitPreOrder(head, look);
    }

    QModelIndexList indexes;
    indexes.reserve(records.size());
    for (const Record &record : records) {
        const bool exists =
            known.contains(record.pointer) && record.column >= 0 && record.column < columnCount();
        const auto *const item = reinterpret_cast<const TreeItem *>(record.pointer);
        indexes.append(exists ? rowIndex(item).siblingAtColumn(record.column) : QModelIndex());
    }
    return indexes;
}

void FishModel::write(QJsonObject &out, TreeItem *item, bool includeItem)
{
    if (!item || (!includeItem && item->childItems().isEmpty()))
        return;
    const TreeItem *const top = includeItem ? item : item->childItems().last();
    out = QJsonObject();
    JsonNodes::write(out, *top, JsonNodes::buildableLevels);
}

void FishModel::read(const QJsonObject &root, TreeItem *parent, int position)
{
    if (!parent || isAnnouncing() || (!fishOf(parent) && isInAnyModel(parent)))
        return;
    std::unique_ptr<TreeItem> node = JsonNodes::read(root, parent, position);
    const QModelIndex parentIndex = indexFromItem(parent);
    const bool inside = position >= 0 && position < parent->childCount();
    const int row = inside ? position : parent->childCount();
    if (parentIndex.isValid()) {
        const Change insertion = inserting(parentIndex, row, row);
        parent->appendChild(node.release(), row);
    } else if (containerRow(parent) >= 0) {
        // A document gets a head: its row is there already, but had no index.
        const Change reset = resetting();
        parent->appendChild(node.release(), row);
        stamp(parent);
    } else {
        parent->appendChild(node.release(), row);
    }
}
