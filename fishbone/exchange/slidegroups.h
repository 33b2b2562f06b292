// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

#include <vector>

class SlideConnections;
struct SlideShape;

/** Which shapes of a slide are moved as one. */
namespace SlideGroups {

/** What @p shape covers. */
QRectF boundsOf(const SlideShape &shape);

/**
 * All of @p shapes by their indexes, the undermost first. Those that belong together stand
 * together: a shape to which lines lead, as a category or the spine, with what is drawn on it and
 * about it before the next bone begins: the title, icons, head and tail. All others are alone.
 * Nothing comes to lie above or below what it overlaps in another way than before.
 */
std::vector<std::vector<int>> of(const std::vector<SlideShape> &shapes,
                                 const SlideConnections &connections);

} // namespace SlideGroups
