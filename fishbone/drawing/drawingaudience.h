// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QGraphicsView;

/**
 * Whoever follows each drawing of the process without being a part of any: assistive technology. An
 * editor tells the audience through here and knows no more of it; the functions are defined by
 * `accessibility`.
 */
namespace DrawingAudience {

/** Lets the audience find the views of editors. May be called again. */
void invite();

/**
 * To be called when the drawing in @p view was built, laid out or taken down; takes no time where
 * nobody follows. The scene's own signal would come after every repaint, and costs the scene more
 * than the repaint itself.
 */
void drawingChanged(QGraphicsView *view);

} // namespace DrawingAudience
