// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/treeitem.h>

#include <vector>

/**
 * Calls @p visit for @p top and everything below it, parents before children and siblings in their
 * order, until it returns false; whether it never did. Takes no stack, however deep the tree is.
 */
template <typename Visitor>
bool visitSubjects(TreeItem *top, Visitor visit)
{
    std::vector<TreeItem *> waiting{top};
    while (!waiting.empty()) {
        TreeItem *const subject = waiting.back();
        waiting.pop_back();
        if (!visit(subject))
            return false;
        const QList<TreeItem *> &children = subject->childItems();
        waiting.insert(waiting.end(), children.crbegin(), children.crend());
    }
    return true;
}
