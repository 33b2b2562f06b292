// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <benchmarks/baretree.h>

#include <QJsonArray>
#include <QUuid>

#include <fishbone/model/jsonnodes.h>

using namespace JsonNodes; // the keys

namespace {

BareNode *nodeAt(const QModelIndex &index)
{
    return static_cast<BareNode *>(index.internalPointer());
}

void numberFrom(BareNode &parent, std::size_t row)
{
    for (; row < parent.children.size(); ++row)
        parent.children[row]->row = int(row);
}

} // namespace

std::unique_ptr<BareNode> bareTreeFrom(const QJsonObject &object, BareNode *parent)
{
    auto node = std::make_unique<BareNode>();
    node->parent = parent;
    node->title = object.value(titleKey).toString();
    node->uuid = object.value(uuidKey).toString();
    node->showid = object.value(showidKey).toString();
    node->pid = object.value(pidKey).toString();
    node->detail = object.value(detailKey).toString();
    node->url = object.value(urlKey).toString();
    node->managerName = object.value(managerNameKey).toString();
    node->managerId = object.value(managerIdKey).toString();
    node->creatorName = object.value(creatorNameKey).toString();
    node->creatorId = object.value(creatorIdKey).toString();
    node->type = object.value(typeKey).toInt();
    node->status = object.value(statusKey).toInt();
    node->progress = object.value(progressKey).toInt();
    node->priority = object.value(priorityKey).toInt();
    node->createDate = qint64(object.value(createDateKey).toDouble());
    node->planEndDate = qint64(object.value(planEndDateKey).toDouble());
    const QJsonArray followers = object.value(followersKey).toArray();
    for (const QJsonValue &follower : followers)
        node->followers.append(follower.toString());
    const QJsonArray children = object.value(childrenKey).toArray();
    node->children.reserve(std::size_t(children.count()));
    for (const QJsonValue &child : children)
        node->children.push_back(bareTreeFrom(child.toObject(), node.get()));
    numberFrom(*node, 0);
    return node;
}

QJsonObject jsonOf(const BareNode &node)
{
    // In the order of the keys, so that each is appended.
    QJsonObject object;
    QJsonArray children;
    for (const auto &child : node.children)
        children.append(jsonOf(*child));
    object.insert(childrenKey, children);
    object.insert(createDateKey, double(node.createDate));
    object.insert(creatorIdKey, node.creatorId);
    object.insert(creatorNameKey, node.creatorName);
    object.insert(detailKey, node.detail);
    object.insert(followersKey, QJsonArray::fromStringList(node.followers));
    object.insert(managerIdKey, node.managerId);
    object.insert(managerNameKey, node.managerName);
    object.insert(pidKey, node.pid);
    object.insert(planEndDateKey, double(node.planEndDate));
    object.insert(priorityKey, node.priority);
    object.insert(progressKey, node.progress);
    object.insert(showidKey, node.showid);
    object.insert(statusKey, node.status);
    object.insert(titleKey, node.title);
    object.insert(typeKey, node.type);
    object.insert(urlKey, node.url);
    object.insert(uuidKey, node.uuid);
    return object;
}

BareNode *lastNode(BareNode *head)
{
    while (!head->children.empty())
        head = head->children.back().get();
    return head;
}

BareNode *findByUuid(BareNode *head, const QString &uuid)
{
    std::vector<BareNode *> pending{head};
    while (!pending.empty()) {
        BareNode *const node = pending.back();
        pending.pop_back();
        if (node->uuid == uuid)
            return node;
        for (auto child = node->children.crbegin(); child != node->children.crend(); ++child)
            pending.push_back(child->get());
    }
    return nullptr;
}

BareModel::BareModel(std::unique_ptr<BareNode> head)
    : m_head(std::move(head))
{
}

QModelIndex BareModel::indexOf(const BareNode *node) const
{
    return createIndex(node->row, 0, const_cast<BareNode *>(node));
}

QModelIndex BareModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!parent.isValid())
        return row == 0 ? createIndex(0, column, m_head.get()) : QModelIndex();
    const BareNode *const above = nodeAt(parent);
    if (row < 0 || std::size_t(row) >= above->children.size())
        return QModelIndex();
    return createIndex(row, column, above->children[std::size_t(row)].get());
}

QModelIndex BareModel::parent(const QModelIndex &index) const
{
    const BareNode *const above = nodeAt(index)->parent;
    return above ? indexOf(above) : QModelIndex();
}

int BareModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? int(nodeAt(parent)->children.size()) : 1;
}

int BareModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return 5;
}

QVariant BareModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return QVariant();
    const BareNode *const node = nodeAt(index);
    switch (index.column()) {
    case 0:
        return node->title;
    case 1:
        return node->uuid;
    case 2:
        return node->showid;
    case 3:
        return node->pid;
    default:
        return node->type;
    }
}

bool BareModel::insertRows(int row, int count, const QModelIndex &parent)
{
    if (!parent.isValid() || row < 0 || row > rowCount(parent) || count < 1)
        return false;
    BareNode *const above = nodeAt(parent);
    beginInsertRows(parent, row, row + count - 1);
    for (int i = 0; i < count; ++i) {
        auto node = std::make_unique<BareNode>();
        node->parent = above;
        node->uuid = QUuid::createUuid().toString();
        node->pid = above->uuid;
        above->children.insert(above->children.begin() + row + i, std::move(node));
    }
    numberFrom(*above, std::size_t(row));
    endInsertRows();
    return true;
}

bool BareModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (!parent.isValid() || row < 0 || count < 1 || row + count > rowCount(parent))
        return false;
    BareNode *const above = nodeAt(parent);
    beginRemoveRows(parent, row, row + count - 1);
    const auto first = above->children.begin() + row;
    above->children.erase(first, first + count);
    numberFrom(*above, std::size_t(row));
    endRemoveRows();
    return true;
}
