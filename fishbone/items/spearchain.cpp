// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearchain.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/items/textitem.h>

SpearChain::SpearChain(SpearItem &spear)
    : m_spear(spear)
{
}

int SpearChain::depth() const
{
    int ancestors = 0;
    for (const QGraphicsItem *item = m_spear.parentItem(); item; item = item->parentItem())
        ++ancestors;
    return ancestors;
}

void SpearChain::note(bool isOut)
{
    if (m_isOut == isOut)
        return;
    m_isOut = isOut;
    change(&m_spear, isOut ? 1 : -1);
}

void SpearChain::leaveParent()
{
    tellParent(-1);
}

void SpearChain::joinParent()
{
    tellParent(1);
}

void SpearChain::tellParent(int by)
{
    if (standsOut())
        change(m_spear.parentSpear(), by);
}

/**
 * One more or one less of @p spear and its children stands out. Goes up only as far as that makes
 * a difference, so that selecting all takes linear time.
 */
void SpearChain::change(SpearItem *spear, int by)
{
    for (; spear; spear = spear->parentSpear()) {
        SpearChain &chain = SpearParts::of(*spear).chain;
        const bool stoodOut = chain.standsOut();
        chain.m_count += by;
        if (chain.standsOut() == stoodOut)
            return;
        if (!spear->look().showsChains())
            continue;
        spear->update();
        spear->textItem()->update();
    }
}
