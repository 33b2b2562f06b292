// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/treeitem.h>

namespace TestSupport {

/** A record for EditModify, which does not own it. */
inline TreeItem *record()
{
    static TreeItem item;
    item.setTitle(QStringLiteral("new"));
    return &item;
}

} // namespace TestSupport
