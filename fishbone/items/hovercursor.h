// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class QGraphicsItem;
class QPointF;

/**
 * Shows a pointing hand over the scene's first view when @p item is the topmost item at
 * @p scenePos, an arrow otherwise. Does nothing outside a scene with a view.
 */
void showHoverCursor(const QGraphicsItem &item, const QPointF &scenePos);

/** Shows an arrow over the viewport of the scene's first view, if there is one. */
void showArrowCursor(const QGraphicsItem &item);

/**
 * Held by a view while it hands a mouse move on to a scene in which every item accepts hover
 * events: an item that gets the event then has nothing above it there, and showHoverCursor()
 * need not search the scene a second time.
 */
class HoverDispatch
{
    Q_DISABLE_COPY(HoverDispatch)

public:
    explicit HoverDispatch(bool reachesTopmost)
        : m_outer(m_reachesTopmost)
    {
        m_reachesTopmost = reachesTopmost;
    }
    ~HoverDispatch() { m_reachesTopmost = m_outer; }

    static bool reachesTopmost() { return m_reachesTopmost; }

private:
    static inline bool m_reachesTopmost = false;
    const bool m_outer;
};
