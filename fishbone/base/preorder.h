// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

/**
 * Calls @p visit for @p top, which may be null, and everything below it, parents before children
 * and siblings in their order, until it returns false; whether it never did. @p childrenOf gives
 * the children of a node, and is asked after the visit. Takes no stack, however deep the tree is.
 */
template <typename Node, typename ChildrenOf, typename Visitor>
bool visitPreOrder(Node *top, ChildrenOf childrenOf, Visitor visit)
{
    std::vector<Node *> waiting;
    if (top)
        waiting.push_back(top);
    while (!waiting.empty()) {
        Node *const node = waiting.back();
        waiting.pop_back();
        if (!visit(node))
            return false;
        const auto &children = childrenOf(*node);
        waiting.insert(waiting.end(), children.crbegin(), children.crend());
    }
    return true;
}
