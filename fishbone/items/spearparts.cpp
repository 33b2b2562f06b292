// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearparts.h>

#include <fishbone/base/prefetch.h>
#include <fishbone/items/headpictures.h>
#include <fishbone/model/treeitem.h>

namespace {
constexpr int itemPrivateSize = 320; ///< what the toolkit keeps of a line, about
constexpr int lookDataSize = 512;    ///< what a look keeps of a spear, about
} // namespace

SpearParts::SpearParts(SpearItem &item, const QString &text, int direction, double spearSize)
    : spear(item)
    , subject(item)
    , children(item)
    , companions(item)
    , title(item, companions, text)
    , chain(item)
    , appearance(item, companions, title, chain)
    , place(item, companions, direction, spearSize)
{
}

void SpearParts::begin()
{
    ++SpearItem::m_refCount;
    HeadPictures::load();
    spear.setToolTip(title.text());
    spear.setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable |
                   QGraphicsItem::ItemSendsGeometryChanges | QGraphicsItem::ItemIsPanel);
    companions.make();
    spear.setAcceptHoverEvents(true);
    spear.applyState(SpearStyle::ssNormal);
}

void SpearParts::end()
{
    guard.clear();
    chain.leaveParent();
    subject.leave();
    if (--SpearItem::m_refCount == 0)
        HeadPictures::release();
}

void SpearParts::follow(QGraphicsItem::GraphicsItemChange change, const QVariant &value)
{
    switch (change) {
    case QGraphicsItem::ItemSelectedHasChanged:
        appearance.followSelection();
        break;
    case QGraphicsItem::ItemSceneHasChanged:
        appearance.leaveScene();
        break;
    case QGraphicsItem::ItemParentChange:
        chain.leaveParent();
        break;
    case QGraphicsItem::ItemParentHasChanged:
        chain.joinParent();
        break;
    case QGraphicsItem::ItemChildAddedChange:
        children.forget();
        break;
    case QGraphicsItem::ItemChildRemovedChange:
        children.forget();
        companions.forget(value.value<QGraphicsItem *>());
        break;
    default:
        break;
    }
}

void SpearParts::prefetch(const SpearItem &item)
{
    ::prefetch(item.m_parts.get(), int(sizeof(SpearParts)));
    ::prefetch(item.d_ptr.data(), itemPrivateSize);
}

void SpearParts::prefetchOthers() const
{
    ::prefetch(subject.item(), int(sizeof(TreeItem)));
    companions.prefetchAll();
    ::prefetch(place.lookData(), lookDataSize);
}
