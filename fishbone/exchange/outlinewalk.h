// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/treeitem.h>

#include <algorithm>
#include <vector>

/** Walks over a whole tree that writers share. None of them takes stack for the depth. */
namespace OutlineWalk {

/**
 * Calls @p enter with every subject and its level, which is 0 for @p head, parents before children,
 * and @p leave with every subject after all below it.
 */
template <typename Enter, typename Leave>
void walk(const TreeItem &head, Enter enter, Leave leave)
{
    struct Open
    {
        const TreeItem *subject;
        int next; ///< the child that comes next
    };
    std::vector<Open> open{{&head, 0}};
    enter(head, 0);
    while (!open.empty()) {
        Open &last = open.back();
        const QList<TreeItem *> &children = last.subject->childItems();
        if (last.next == children.size()) {
            leave(*last.subject);
            open.pop_back();
            continue;
        }
        const TreeItem *const child = children.at(last.next++);
        enter(*child, int(open.size()));
        open.push_back({child, 0});
    }
}

/** As above, without a call for the end of a subject. */
template <typename Enter>
void walk(const TreeItem &head, Enter enter)
{
    walk(head, enter, [](const TreeItem &) {});
}

/** The number of levels from @p head on, itself included. */
inline int levelsOf(const TreeItem &head)
{
    int levels = 0;
    walk(head, [&levels](const TreeItem &, int level) { levels = std::max(levels, level + 1); });
    return levels;
}

} // namespace OutlineWalk
