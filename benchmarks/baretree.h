// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QAbstractItemModel>
#include <QJsonObject>
#include <QStringList>

/** What a host without the library would keep of a subject. */
struct BareNode
{
    QString title, uuid, showid, pid, detail, url;
    QString managerName, managerId, creatorName, creatorId;
    QStringList followers;
    int type = 0, status = 0, progress = 0, priority = 0;
    qint64 createDate = 0, planEndDate = 0;
    BareNode *parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<BareNode>> children;
};

/** The tree that @p object, a document in the library's format, describes. */
std::unique_ptr<BareNode> bareTreeFrom(const QJsonObject &object, BareNode *parent = nullptr);
/** The reverse. */
QJsonObject jsonOf(const BareNode &node);
/** The last node in pre-order. */
BareNode *lastNode(BareNode *head);
/** The first node in pre-order with that uuid, found by walking the pointers; null without one. */
BareNode *findByUuid(BareNode *head, const QString &uuid);

/**
 * An item model over such a tree, with the columns that the library's model has and nothing else.
 */
class BareModel : public QAbstractItemModel
{
public:
    explicit BareModel(std::unique_ptr<BareNode> head);

    BareNode *head() const { return m_head.get(); }
    QModelIndex indexOf(const BareNode *node) const;

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &parent) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /** Only below the head. */
    bool insertRows(int row, int count, const QModelIndex &parent) override;
    bool removeRows(int row, int count, const QModelIndex &parent) override;

private:
    std::unique_ptr<BareNode> m_head;
};
