// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/jsonnodes.h>

#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/treeitem.h>

#include <QByteArray>
#include <QJsonArray>
#include <QQueue>

#include <algorithm>
#include <vector>

namespace {

using namespace JsonNodes;

/** Adds the attributes of one node. The keys go in in sorted order, since each goes where it stays
 * then. */
void insertAttributes(QJsonObject &object, const TreeItem &node)
{
    for (const SubjectAttribute &attribute : SubjectAttribute::inKeyOrder()) {
        if (attribute.isWritten(node))
            object.insert(attribute.key(), attribute.value(node));
    }
    if (!node.hasOtherFields())
        return;
    const QJsonObject others = node.otherFields();
    for (auto field = others.begin(); field != others.end(); ++field)
        object.insert(field.key(), field.value());
}

/** The object of one node. */
QJsonObject nodeObject(const TreeItem &node, const QJsonArray &children)
{
    QJsonObject object;
    object.insert(childrenKey, children);
    insertAttributes(object, node);
    return object;
}

/** A children array whose nodes are still to be made: there is nothing yet that could be visited.
 */
struct Pending
{
    QJsonArray objects;
    TreeItem *parent;
};

/** Queues what lies below @p object, the object of @p node. */
void queueChildren(QQueue<Pending> &queue, const QJsonObject &object, TreeItem *node)
{
    const QJsonArray children = object.value(childrenKey).toArray();
    if (!children.isEmpty())
        queue.enqueue({children, node});
}

} // namespace

namespace JsonNodes {

bool isKnown(const QString &key)
{
    return key == childrenKey || SubjectAttribute::find(key);
}

QJsonObject otherFields(const QJsonObject &object)
{
    QJsonObject others;
    for (auto field = object.begin(); field != object.end(); ++field) {
        if (!isKnown(field.key()))
            others.insert(field.key(), field.value());
    }
    return others;
}

QJsonObject attributes(const TreeItem &node)
{
    QJsonObject object;
    insertAttributes(object, node);
    return object;
}

int readAttributes(TreeItem &node, const QJsonObject &object)
{
    int known = object.contains(childrenKey);
    for (const SubjectAttribute &attribute : SubjectAttribute::inKeyOrder()) {
        const QJsonValue value = object.value(attribute.key());
        known += !value.isUndefined();
        attribute.read(node, value);
    }
    return known;
}

Extent write(QJsonObject &out, const TreeItem &top, int maxLevels)
{
    struct Frame
    {
        const TreeItem *node;
        QJsonArray children = {}; // the finished ones
    };
    Extent extent{1, false};
    std::vector<Frame> frames;
    frames.push_back({&top});
    for (;;) {
        Frame &frame = frames.back();
        const int next = frame.children.size();
        if (next < frame.node->childCount()) {
            if (int(frames.size()) >= maxLevels)
                return {};
            const TreeItem *const child = frame.node->childItems().at(next);
            frames.push_back({child});
            extent.levels = std::max(extent.levels, int(frames.size()));
            continue;
        }
        extent.hasOtherFields = extent.hasOtherFields || frame.node->hasOtherFields();
        const QJsonObject object = nodeObject(*frame.node, frame.children);
        frames.pop_back();
        if (frames.empty()) {
            out = object;
            return extent;
        }
        frames.back().children.append(object);
    }
}

int nesting(const QByteArray &json)
{
    int depth = 0;
    int deepest = 0;
    bool inString = false;
    for (int i = 0; i < json.size(); ++i) {
        const char c = json.at(i);
        if (inString) {
            if (c == '\\')
                ++i;
            else if (c == '"')
                inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            deepest = std::max(deepest, ++depth);
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return deepest;
}

std::unique_ptr<TreeItem> read(const QJsonObject &root, TreeItem *parent, int position)
{
    auto top = std::make_unique<TreeItem>(root, parent);
    QQueue<Pending> queue;
    queueChildren(queue, root, top.get());
    while (!queue.isEmpty()) {
        const Pending pending = queue.dequeue();
        const int count = pending.objects.size();
        const int inOrder = position < 0 ? count : std::min(position, count);
        for (int i = 0; i < count; ++i) {
            const int from = i < inOrder ? i : count - 1 - (i - inOrder);
            const QJsonObject object = pending.objects.at(from).toObject();
            auto *const node = new TreeItem(object, pending.parent);
            pending.parent->appendChild(node);
            queueChildren(queue, object, node);
        }
    }
    return top;
}

Counts load(const QJsonObject &root, TreeItem &container)
{
    // The head has no parent task and is not meant.
    Counts counts{0, -1};
    QQueue<Pending> queue;
    queue.enqueue({QJsonArray{root}, &container});
    while (!queue.isEmpty()) {
        const Pending pending = queue.dequeue();
        for (const QJsonValue &value : pending.objects) {
            const QJsonObject object = value.toObject();
            if (object.isEmpty())
                continue;
            auto *const node = new TreeItem(object, pending.parent);
            pending.parent->appendChild(node);
            ++counts.nodes;
            if (!node->isHaveParentTask())
                ++counts.withoutParentTask;
            queueChildren(queue, object, node);
        }
    }
    return counts;
}

} // namespace JsonNodes
