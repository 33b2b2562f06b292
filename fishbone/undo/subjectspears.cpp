// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/subjectspears.h>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>

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

void deleteSpear(SpearItem *spear, SelectionHold &hold)
{
    hold.add(spear->scene());
    const SelectionSilence silence(spear->scene());
    delete spear;
}

/** The spears of @p subjects that are children of @p parent. */
QList<SpearItem *> spearsBelow(const SpearItem *parent, const QList<TreeItem *> &subjects)
{
    QList<SpearItem *> spears;
    for (const TreeItem *subject : subjects) {
        if (subject->spear() && subject->spear()->parentItem() == parent)
            spears.append(subject->spear());
    }
    return spears;
}

/** Makes @p spears, children of @p parent, the last ones in their order. */
void moveToEnd(SpearItem *parent, const QList<SpearItem *> &spears)
{
    // Away and back: they stay in the scene and as visible as they are, so that this costs little.
    QGraphicsLineItem away(parent);
    for (SpearItem *spear : spears)
        spear->setParentItem(&away);
    for (SpearItem *spear : spears)
        spear->setParentItem(parent);
}

/** Stacks the children of the spear of @p parent in row order, when only @p changed are not. */
void orderSpears(const TreeItem &parent, const QList<TreeItem *> &changed)
{
    constexpr int few = 8;
    SpearItem *const spear = parent.spear();
    if (changed.size() > few) {
        moveToEnd(spear, spearsBelow(spear, parent.childItems()));
    } else if (!changed.isEmpty()) {
        // Each goes past those behind its place; one in front would send all of them past it.
        moveToEnd(spear, spearsBelow(spear, changed));
        spear->stackChildrenInRowOrder();
    }
}

/** Makes the spears that the children of @p parent lack, and returns those children. */
QList<TreeItem *> generateChildSpears(const FishModel &model, const TreeItem &parent)
{
    QList<TreeItem *> made;
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
        made.append(child);
    }
    return made;
}

} // namespace

void generateMissingSpears(const FishModel &model, TreeItem *parent, const QList<TreeItem *> &moved)
{
    if (!parent || !parent->spear())
        return;
    QQueue<TreeItem *> queue;
    queue.append(generateChildSpears(model, *parent));
    if (queue.size() < parent->childCount())
        orderSpears(*parent, queue + moved);
    while (!queue.isEmpty()) // not visitSubjects(): it goes on only below what was made
        queue.append(generateChildSpears(model, *queue.dequeue()));
}

void deleteSpears(TreeItem *subject, SelectionHold &hold)
{
    visitSubjects(subject, [&hold](const TreeItem *below) {
        if (below->spear())
            deleteSpear(below->spear(), hold);
        return true;
    });
}

void moveSpear(TreeItem *subject, const SpearPointer &former, SelectionHold &hold)
{
    SpearItem *const spear = subject->spear();
    SpearItem *const parent = subject->parent() ? subject->parent()->spear() : nullptr;
    if (former.get() && former.get() != spear && former.get()->parentItem())
        deleteSpear(former.get(), hold);
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
        deleteSpear(spear, hold);
        return;
    }
    hold.add(spear->scene());
    const SelectionSilence silence(spear->scene()); // a bone that is contracted hides it
    if (spear->scene() && spear->scene() != parent->scene())
        spear->scene()->removeItem(spear);
    spear->setParentItem(parent);
}
