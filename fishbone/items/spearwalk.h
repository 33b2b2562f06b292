// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/preorder.h>
#include <fishbone/items/spearitem.h>

/** visitPreOrder() of spears, those that are hidden included. */
template <typename Visitor>
bool visitSpears(SpearItem *top, Visitor visit)
{
    return visitPreOrder(
        top, [](const SpearItem &spear) { return spear.childSpears(); }, visit);
}
