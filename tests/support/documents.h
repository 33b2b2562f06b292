// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

namespace TestSupport {

/** One node object of the diagram format, its children left aside. */
inline QJsonObject nodeObject(const QString &title, const QString &uuid, const QString &pid)
{
    return {{QStringLiteral("title"), title},
            {QStringLiteral("uuid"), uuid},
            {QStringLiteral("pid"), pid},
            {QStringLiteral("children"), QJsonArray()}};
}

/**
 * The document that "Effect[Man[Training],Machine]" stands for: the head Effect with two main
 * bones, the first of which has a child. A uuid is the title with "u-" in front, a pid the uuid of
 * the parent; the head's is "-1".
 */
inline QJsonObject documentFromText(const QString &text)
{
    struct Open
    {
        QString title;
        QJsonArray children;
    };
    QVector<Open> open(1); // what holds the head; the last one is being read
    const auto close = [&open] {
        const Open node = open.takeLast();
        const bool isHead = open.size() == 1;
        const QString uuid = QStringLiteral("u-") + node.title;
        const QString pid =
            isHead ? QStringLiteral("-1") : QStringLiteral("u-") + open.last().title;
        QJsonObject object = nodeObject(node.title, uuid, pid);
        object.insert(QStringLiteral("children"), node.children);
        open.last().children.append(object);
    };
    open.append(Open());
    for (const QChar sign : text) {
        if (sign == QLatin1Char('[')) {
            open.append(Open());
        } else if (sign == QLatin1Char(',')) {
            close();
            open.append(Open());
        } else if (sign == QLatin1Char(']')) {
            close();
        } else {
            open.last().title.append(sign);
        }
    }
    close();
    return open.last().children.first().toObject();
}

/** The titles of a node and all below it, "Effect[Man[Training],Machine]". */
inline QString treeToText(const TreeItem &top)
{
    QString text;
    struct Step
    {
        const TreeItem *node; ///< null: only the sign
        QChar sign;           ///< before the node
    };
    std::vector<Step> steps{{&top, QChar()}};
    while (!steps.empty()) {
        const Step step = steps.back();
        steps.pop_back();
        if (!step.sign.isNull())
            text.append(step.sign);
        if (!step.node)
            continue;
        text.append(step.node->title());
        const QList<TreeItem *> &children = step.node->childItems();
        if (!children.isEmpty())
            steps.push_back({nullptr, QLatin1Char(']')});
        for (int i = children.size() - 1; i >= 0; --i)
            steps.push_back({children.at(i), QLatin1Char(i == 0 ? '[' : ',')});
    }
    return text;
}

/**
 * The same for what any model shows at and below @p index: the texts of @p column. For shallow
 * trees.
 */
inline QString treeToText(const QAbstractItemModel &model, const QModelIndex &index, int column = 0)
{
    QString text = index.siblingAtColumn(column).data().toString();
    const int rows = model.rowCount(index);
    for (int row = 0; row < rows; ++row) {
        text.append(QLatin1Char(row == 0 ? '[' : ','));
        text.append(treeToText(model, model.index(row, 0, index), column));
    }
    return rows > 0 ? text + QLatin1Char(']') : text;
}

/** Loads a document into a model, as from a file. A document nests 511 subjects at most. */
inline FishInfo *loadDocument(FishModel &model, const QJsonObject &document)
{
    return model.loadJsonFish(QJsonDocument(document).toJson(QJsonDocument::Compact));
}

/** Loads the document that documentFromText() reads. */
inline FishInfo *loadDocument(FishModel &model, const QString &text)
{
    return loadDocument(model, documentFromText(text));
}

/** The node of that title in a model of any number of documents; null when there is none. */
inline TreeItem *nodeTitled(const FishModel &model, const QString &title)
{
    std::vector<TreeItem *> waiting;
    const QList<FishInfo *> documents = model.fishList();
    for (auto document = documents.crbegin(); document != documents.crend(); ++document)
        waiting.push_back((*document)->treeItem());
    while (!waiting.empty()) {
        TreeItem *const node = waiting.back();
        waiting.pop_back();
        if (node->parent() && node->title() == title)
            return node;
        const QList<TreeItem *> &children = node->childItems();
        waiting.insert(waiting.end(), children.crbegin(), children.crend());
    }
    return nullptr;
}

/** The index of nodeTitled(). */
inline QModelIndex indexTitled(const FishModel &model, const QString &title)
{
    return model.indexFromItem(nodeTitled(model, title));
}

/** What a random document looks like. */
struct RandomShape
{
    int nodes = 20;        ///< the head included
    int widest = 6;        ///< children of a node, at most
    int longestTitle = 12; ///< letters
    int linkPercent = 20;  ///< nodes with a url
};

/**
 * A random document, the same for the same seed everywhere. Titles start with the number of the
 * node, so that they differ; uuids have one length.
 */
inline QJsonObject randomDocument(quint32 seed, const RandomShape &shape = {})
{
    QRandomGenerator random(seed);
    struct Node
    {
        QJsonObject object;
        int parent;
        int children;
    };
    std::vector<Node> nodes;
    const auto uuidOf = [seed](int number) {
        return QStringLiteral("%1-%2")
            .arg(seed, 8, 16, QLatin1Char('0'))
            .arg(number, 8, 16, QLatin1Char('0'));
    };
    for (int i = 0; i < shape.nodes; ++i) {
        int parent = -1;
        while (i > 0 && parent < 0) {
            const int candidate = random.bounded(i);
            if (nodes[std::size_t(candidate)].children < shape.widest)
                parent = candidate;
        }
        QString title = QString::number(i);
        const int length = random.bounded(shape.longestTitle + 1);
        while (title.length() < length)
            title.append(QChar('a' + random.bounded(26)));
        QJsonObject object =
            nodeObject(title, uuidOf(i), parent < 0 ? QStringLiteral("-1") : uuidOf(parent));
        if (random.bounded(100) < shape.linkPercent)
            object.insert(QStringLiteral("url"), QStringLiteral("https://example.org/%1").arg(i));
        object.insert(QStringLiteral("status"), random.bounded(-1, 8));
        object.insert(QStringLiteral("progress"), random.bounded(101));
        nodes.push_back({object, parent, 0});
        if (parent >= 0)
            ++nodes[std::size_t(parent)].children;
    }
    // A node's parent comes before it, so that backwards every node is complete when it is taken.
    const QString childrenKey = QStringLiteral("children");
    for (std::size_t i = nodes.size(); i-- > 1;) {
        QJsonObject &parent = nodes[std::size_t(nodes[i].parent)].object;
        QJsonArray children = parent.value(childrenKey).toArray();
        children.prepend(nodes[i].object);
        parent.insert(childrenKey, children);
    }
    return nodes.front().object;
}

/** A node with a child with a child and so on, @p depth nodes titled by their depth from 0 on. */
inline std::unique_ptr<TreeItem> makeChain(int depth)
{
    auto top = std::make_unique<TreeItem>();
    top->setTitle(QStringLiteral("0"));
    top->ensureUuid();
    TreeItem *last = top.get();
    for (int i = 1; i < depth; ++i) {
        auto next = std::make_unique<TreeItem>();
        next->setTitle(QString::number(i));
        next->ensureUuid();
        last->insertChildAtPosition(0, next.get());
        last = next.release();
    }
    return top;
}

/** A node with @p width children titled by their row. */
inline std::unique_ptr<TreeItem> makeFan(int width)
{
    auto top = std::make_unique<TreeItem>();
    top->setTitle(QStringLiteral("fan"));
    top->ensureUuid();
    for (int i = 0; i < width; ++i) {
        auto child = std::make_unique<TreeItem>();
        child->setTitle(QString::number(i));
        child->ensureUuid();
        top->insertChildAtPosition(i, child.release());
    }
    return top;
}

/** Takes a tree over as the last document of a model, announced, and returns its head. */
inline TreeItem *addDocument(FishModel &model, std::unique_ptr<TreeItem> head)
{
    TreeItem *const added = head.release();
    model.insertExistItemRows(QModelIndex(), {added});
    return added;
}

} // namespace TestSupport
