// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>

class QGraphicsItem;

/// Shows the pointing hand on the viewport of the scene's first view while \a item is the topmost
/// one at \a scenePos, else the arrow. Does nothing without a scene or a view.
void showHoverCursor(const QGraphicsItem &item, const QPointF &scenePos);

/// Shows the arrow on the viewport of the scene's first view.
void showArrowCursor(const QGraphicsItem &item);
