// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/subjectspears.h>

#include <fishbone/items/spearfactory.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/subjectwalk.h>

#include <QGraphicsScene>
#include <QQueue>

namespace {

/** Whether @p spear is the top of a drawing that somebody else than the one of @p parent shows. */
bool headsAnotherDrawing(const SpearItem *spear, const SpearItem *parent)
{
    return spear && !spear->parentItem() && spear->scene() != parent->scene();
}

/** Leaves the spears of @p subject and of everything below it without their subjects. */
void unlinkSpears(TreeItem *subject)
{
    visitSubjects(subject, [](TreeItem *below) {
        below->setSpear(nullptr, QModelIndex());
        return true;
    });
}

/** Makes the spears that the children of @p parent lack and queues those with children. */
void generateChildSpears(const FishModel &model, const TreeItem &parent, QQueue<TreeItem *> &queue)
{
    const QModelIndex index = model.indexFromItem(&parent);
    const QList<TreeItem *> children = parent.children();
    for (int row = 0; row < children.size(); ++row) {
        TreeItem *const child = children.at(row);
        if (headsAnotherDrawing(child->spear(), parent.spear()))
            unlinkSpears(child);
        if (child->spear())
            continue;
        SpearItem *const spear =
            makeSpear(model, model.index(row, 0, index), 0, parent.spear()->spearSize());
        spear->setParentItem(parent.spear());
        if (child->childCount() > 0)
            queue.enqueue(child);
    }
}

} // namespace

void generateMissingSpears(const FishModel &model, TreeItem *parent)
{
    if (!parent || !parent->spear())
        return;
    QQueue<TreeItem *> queue;
    generateChildSpears(model, *parent, queue);
    parent->spear()->stackChildrenInRowOrder();
    while (!queue.isEmpty())
        generateChildSpears(model, *queue.dequeue(), queue);
}

void deleteSpears(TreeItem *subject)
{
    visitSubjects(subject, [](TreeItem *below) {
        delete below->spear();
        return true;
    });
}

void moveSpear(TreeItem *subject)
{
    SpearItem *const spear = subject->spear();
    SpearItem *const parent = subject->parent() ? subject->parent()->spear() : nullptr;
    if (!spear)
        return;
    if (!spear->parentItem()) {
        if (!parent)
            return;
        if (headsAnotherDrawing(spear, parent)) {
            unlinkSpears(subject); // whoever shows that drawing still holds the spear
            return;
        }
        spear->setZValue(0);
    } else if (!parent) {
        delete spear;
        return;
    }
    // Also among siblings, so that what comes forward only has to go past those behind its place.
    if (spear->scene() && spear->scene() != parent->scene())
        spear->scene()->removeItem(spear);
    else
        spear->setParentItem(nullptr);
    spear->setParentItem(parent);
}
