// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

/** Every model there is. */
QVector<FishModel *> &livingModels()
{
    static QVector<FishModel *> models;
    return models;
}

} // namespace

FishModel::FishModel(QObject *parent)
    : DragDropModel(parent)
    , m_d(std::make_unique<Private>(*this))
{
    livingModels().append(this);
    qRegisterMetaType<MODEL_ERROR>();
    qRegisterMetaType<TreeItem *>();
}

FishModel::~FishModel()
{
    livingModels().removeOne(this);
    m_d->documents.clear();
}

QModelIndex FishModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0)
        return QModelIndex();
    if (!parent.isValid()) {
        TreeItem *const head = m_d->documents.headAt(row);
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
        return m_d->documents.count();
    const TreeItem *const item = parent.column() == 0 ? getTreeItem(parent) : nullptr;
    return item ? item->childCount() : 0;
}

int FishModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return Presentation::columns;
}

QVariant FishModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle ? Presentation::header(section) : QVariant();
}

Qt::ItemFlags FishModel::flags(const QModelIndex &index) const
{
    return getTreeItem(index) ? QAbstractItemModel::flags(index) : Qt::NoItemFlags;
}

QVariant FishModel::data(const QModelIndex &index, int role) const
{
    return m_d->presentation.data(index, role);
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
    if (item && source) {
        Rows::copyAttributes(*source, *item);
        m_d->changes.noteSilentChange(fishOf(item));
    }
}

void FishModel::announceChange(const QModelIndex &index)
{
    if (getTreeItem(index))
        tellData(index.siblingAtColumn(0), index.siblingAtColumn(columnCount() - 1));
}

void FishModel::refreshModel()
{
    if (!isAnnouncing())
        const Change reset = m_d->announcer.resetting();
}

/** The row of the document whose container this is, -1 when none of this model's has it. */
int FishModel::containerRow(const TreeItem *container) const
{
    return m_d->documents.rowOf(container->document());
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
    return m_d->documents.rowOf(document);
}

FishInfo *FishModel::fishOf(const TreeItem *item) const
{
    FishInfo *const document = item ? item->root()->document() : nullptr;
    return m_d->documents.contains(document) ? document : nullptr;
}

QModelIndex FishModel::findFish(const QString &fileName) const
{
    return m_d->lookup.documentNamed(fileName);
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
    return m_d->documents.headAt(0);
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
    return m_d->lookup.contains(item);
}

QModelIndex FishModel::modelIndexByUuid(const QString &uuid) const
{
    return m_d->lookup.withUuid(uuid);
}

QModelIndexList FishModel::searchModelIndexes(const QString &key) const
{
    return m_d->lookup.withTitle(key);
}

QModelIndexList FishModel::indexesFromRecords(const QVector<Record> &records) const
{
    return m_d->lookup.ofRecords(records);
}

bool FishModel::insertRows(int row, int count, const QModelIndex &parent)
{
    return m_d->rows.insert(row, count, parent);
}

bool FishModel::insertExistItemRows(const QModelIndex &parent, const QList<TreeItem *> &items)
{
    return m_d->rows.append(parent, items);
}

bool FishModel::removeRows(int row, int count, const QModelIndex &parent)
{
    return m_d->rows.remove(row, count, parent);
}

TreeItem *FishModel::takeRow(int row, const QModelIndex &parent)
{
    return m_d->rows.take(row, parent);
}

bool FishModel::putRow(int row, TreeItem *item, const QModelIndex &parent)
{
    return m_d->rows.put(row, item, parent);
}

bool FishModel::moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                         const QModelIndex &destinationParent, int destinationChild)
{
    TreeItem *const source = getTreeItem(sourceParent);
    TreeItem *const destination = getTreeItem(destinationParent);
    return (source || !sourceParent.isValid()) && (destination || !destinationParent.isValid()) &&
           m_d->moves.move(source, sourceRow, count, destination, destinationChild);
}

bool FishModel::moveSrcToDstWithList(TreeItem *source, int sourceRow, int count,
                                     TreeItem *destination, int destinationChild)
{
    return m_d->moves.move(source, sourceRow, count, destination, destinationChild);
}

FishInfo *FishModel::moveHeadUnder(int row, const QModelIndex &parent, int position)
{
    return m_d->moves.moveHeadUnder(row, parent, position);
}

bool FishModel::moveToTopLevel(const QModelIndex &index, int row, FishInfo *document)
{
    return m_d->moves.moveToTopLevel(index, row, document);
}

bool FishModel::wrapHead(FishInfo *document, TreeItem *newHead)
{
    return m_d->heads.wrap(document, newHead);
}

TreeItem *FishModel::unwrapHead(FishInfo *document, TreeItem *child)
{
    return m_d->heads.unwrap(document, child);
}

QList<FishInfo *> FishModel::fishList() const
{
    return m_d->documents.all();
}

bool FishModel::insertFishToList(int row, int count)
{
    return m_d->listing.insertToList(row, count);
}

bool FishModel::insertFishToList(int row, TreeItem *head)
{
    return m_d->listing.insertToList(row, head);
}

bool FishModel::removeFishFromList(int row, int count)
{
    return m_d->listing.removeFromList(row, count);
}

void FishModel::unloadFish(FishInfo *document)
{
    // Compared with the list before anybody looks at it.
    delete takeFish(m_d->documents.all().indexOf(document));
}

FishInfo *FishModel::takeFish(int row)
{
    return m_d->listing.take(row);
}

bool FishModel::insertFish(int row, FishInfo *document)
{
    return m_d->listing.insert(row, document);
}

/** Carries out a @p change of a listed document's whole tree. */
void FishModel::rebuild(FishInfo *document, const std::function<void()> &change)
{
    m_d->listing.rebuild(document, change);
}

/** A listed document dies. */
void FishModel::forget(FishInfo *dying)
{
    m_d->listing.forget(dying);
}

bool FishModel::isInAnyModel(const TreeItem *item)
{
    const QVector<FishModel *> &models = livingModels();
    return std::any_of(models.cbegin(), models.cend(),
                       [item](const FishModel *model) { return model->fishOf(item) != nullptr; });
}

bool FishModel::isAnnouncing() const
{
    return m_d->announcer.isAnnouncing();
}

void FishModel::tellData(const QModelIndex &first, const QModelIndex &last)
{
    m_d->announcer.tellData(first, last);
}

void FishModel::tellNode(const QModelIndex &index)
{
    m_d->announcer.tellNode(index);
}

quint64 FishModel::silentChanges() const
{
    return m_d->changes.silentChanges();
}

quint64 FishModel::changeStamp()
{
    return ChangeRecord::latestStamp();
}

QList<QPointer<FishInfo>> FishModel::fishChangedSince(quint64 stamp)
{
    return Lookup::changedSince(livingModels(), stamp);
}

bool FishModel::isListChangedSince(quint64 stamp) const
{
    return m_d->changes.isListChangedSince(stamp);
}

FishInfo *FishModel::fishOfTold(const QModelIndex &index) const
{
    return m_d->lookup.documentOfTold(getTreeItem(index));
}

FISH_MODEL_TYPE FishModel::modelType() const
{
    return m_d->presentation.type();
}

void FishModel::setModelType(FISH_MODEL_TYPE type)
{
    m_d->presentation.setType(type);
}

FishInfo *FishModel::loadJsonFish(const QByteArray &json)
{
    return m_d->loading.loadJson(json);
}

int FishModel::loadFishFromFile(const QString &path)
{
    return m_d->loading.loadFile(path, true);
}

int FishModel::loadFishTempl()
{
    return m_d->loading.loadTemplate();
}

int FishModel::loadFishFromTemplate(const QString &path)
{
    return m_d->loading.loadFile(path, false);
}

void FishModel::loadFishFromUrl(const QUrl &url)
{
    m_d->loading.fetch(url);
}

bool FishModel::isLoading() const
{
    return m_d->loading.isFetching();
}

void FishModel::cancelLoads()
{
    m_d->loading.cancel();
}

QString FishModel::loadError() const
{
    return m_d->loading.error();
}

int FishModel::reloadDataFromFile(const QString &path, FishInfo *document)
{
    return m_d->loading.reload(path, document);
}

void FishModel::setTransferTimeout(int ms)
{
    m_d->loading.setTimeout(ms);
}

void FishModel::setReplyLimit(qint64 bytes)
{
    m_d->loading.setLimit(bytes);
}

void FishModel::replyFinished(QNetworkReply *reply)
{
    m_d->loading.finishFetch(reply);
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
    m_d->rows.graft(root, parent, position);
}
