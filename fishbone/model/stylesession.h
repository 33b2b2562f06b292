// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/style/spearstyle.h>

#include <QtGlobal>

#include <memory>
#include <utility>

class SpearItem;
class TreeItem;

/**
 * Has bone and box painted in the style and with the marks that apply now; the next layout gives
 * them their room. Defined beside the spear, in items/subjectspear.cpp, as a subject knows nothing
 * of items.
 */
void showStyle(SpearItem &spear);

/**
 * A node whose style the user edits. The dialog runs its own event loop, in which the node can die:
 * its style then waits here until the dialog is done with it.
 */
class StyleSession
{
    Q_DISABLE_COPY(StyleSession)

public:
    explicit StyleSession(TreeItem *node)
        : m_node(node)
        , m_outer(std::exchange(innermost, this))
    {
    }
    ~StyleSession() { innermost = m_outer; }

    bool nodeLives() const { return m_node; }

    static void nodeDies(const TreeItem *node)
    {
        for (StyleSession *session = innermost; session; session = session->m_outer) {
            if (session->m_node == node)
                session->m_node = nullptr;
        }
    }
    /** Deletes @p style, later when it is being edited; null is none. */
    static void discard(const TreeItem *node, std::unique_ptr<SpearStyle> style)
    {
        if (!style)
            return;
        for (StyleSession *session = innermost; session; session = session->m_outer) {
            if (session->m_node == node && !session->m_kept) {
                session->m_kept = std::move(style);
                return;
            }
        }
    }

private:
    static inline StyleSession *innermost = nullptr;

    TreeItem *m_node;
    StyleSession *m_outer;
    std::unique_ptr<SpearStyle> m_kept;
};
