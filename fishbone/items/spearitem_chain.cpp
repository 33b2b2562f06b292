// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that knows what leads to the bones that stand out.

#include <fishbone/items/spearitem.h>

#include <fishbone/items/spearlook.h>
#include <fishbone/items/textitem.h>

void SpearItem::noteStandingOut()
{
    const bool isOut = boxState() != SpearStyle::ssNormal;
    if (m_standsOutItself == isOut)
        return;
    m_standsOutItself = isOut;
    changeStandingOut(isOut ? 1 : -1);
}

/**
 * One more or one less of this spear and its children stands out. Goes up only as far as that
 * makes a difference, so that selecting all takes linear time.
 */
void SpearItem::changeStandingOut(int by)
{
    for (SpearItem *spear = this; spear; spear = spear->parentSpear()) {
        const bool stoodOut = spear->standsOut();
        spear->m_standingOut += by;
        if (spear->standsOut() == stoodOut)
            return;
        if (!spear->m_look->showsChains())
            continue;
        spear->update();
        spear->m_textItem->update();
    }
}
