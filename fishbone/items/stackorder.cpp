// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/stackorder.h>

#include <QGraphicsItem>
#include <QHash>

#include <algorithm>

namespace {

/** How many siblings are passed when each item goes before the next one, from the last item on. */
qint64 passedOneByOne(const QGraphicsItem *parent, const QList<QGraphicsItem *> &items)
{
    QHash<const QGraphicsItem *, int> places;
    const QList<QGraphicsItem *> siblings = parent->childItems();
    for (const QGraphicsItem *sibling : siblings)
        places.insert(sibling, places.size());
    qint64 passed = 0;
    int foremost = siblings.size();
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        const int place = places.value(*item);
        passed += std::max(0, place - foremost);
        foremost = std::min(foremost, place);
    }
    return passed;
}

} // namespace

std::atomic<qint64> StackOrder::passed{0};

void StackOrder::arrange(QGraphicsItem *parent, const QList<QGraphicsItem *> &items)
{
    const qint64 oneByOne = passedOneByOne(parent, items);
    if (oneByOne > 2 * items.size()) {
        passed += items.size();
        // Away and back: they stay in the scene and as visible as they are, so that this costs
        // little.
        QGraphicsLineItem away(parent);
        for (QGraphicsItem *item : items)
            item->setParentItem(&away);
        for (QGraphicsItem *item : items)
            item->setParentItem(parent);
        return;
    }
    passed += oneByOne;
    for (int i = items.size() - 2; oneByOne > 0 && i >= 0; --i)
        items.at(i)->stackBefore(items.at(i + 1));
}
