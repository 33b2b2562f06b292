// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/preorder.h>
#include <fishbone/model/treeitem.h>

/** visitPreOrder() of subjects, const or not. */
template <typename Subject, typename Visitor>
bool visitSubjects(Subject *top, Visitor visit)
{
    const auto childrenOf = [](const TreeItem &subject) -> const QList<TreeItem *> & {
        return subject.childItems();
    };
    return visitPreOrder(top, childrenOf, visit);
}

/** How many subjects there are from @p top on, itself included. Linear, without recursion. */
inline int countSubjects(const TreeItem &top)
{
    int count = 0;
    visitSubjects(&top, [&count](const TreeItem *) {
        ++count;
        return true;
    });
    return count;
}
