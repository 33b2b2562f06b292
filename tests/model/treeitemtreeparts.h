// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/treeitem.h>

#include <limits>
#include <memory>

namespace TestSupport {

constexpr int maxInt = std::numeric_limits<int>::max();

/** A style that shows so many characters of titles. */
inline QJsonObject styleShowing(int characters)
{
    return {{QStringLiteral("textCount"), characters}};
}

/** A node with @p count children c0, c1, … whose uuid is "u". */
inline std::unique_ptr<TreeItem> makeParent(int count)
{
    auto parent = std::make_unique<TreeItem>();
    parent->setTitle(QStringLiteral("p"));
    parent->setUuid(QStringLiteral("u"));
    for (int i = 0; i < count; ++i) {
        auto *const child = new TreeItem;
        child->setTitle(QStringLiteral("c%1").arg(i));
        parent->appendChild(child);
    }
    return parent;
}

inline QString childText(const TreeItem &parent)
{
    QStringList titles;
    for (const TreeItem *child : parent.childItems())
        titles.append(child->title());
    return titles.join(QLatin1Char(' '));
}

/** Whether every child knows its parent and its row. */
inline bool childrenAgree(const TreeItem &parent)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        const TreeItem *const child = parent.childAtIndex(i);
        if (child->parent() != &parent || child->index() != i)
            return false;
    }
    return true;
}

} // namespace TestSupport
