// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlayout.h>

#include <QSizeF>

/** Finds the arrangement of a diagram that is largest on a page. */
namespace ClearArrangement {

/**
 * The options of the largest picture of @p tree on a page with the proportions of @p page, with
 * head side and legend of @p base. Titles are not cut for it, but lines get longer.
 *
 * Small diagrams are laid out in 42 ways, those of more than 500 subjects in six, and of more than
 * 5,000, which nobody reads on one page, in one.
 */
ClearOptions bestFor(const ClearTree &tree, const ClearFonts &fonts, const ClearOptions &base,
                     const QSizeF &page, ClearTextCache &cache,
                     const std::vector<QString> &legend = {});

/** How much larger than 100 % @p bounds are when they fill @p page. */
qreal scaleOn(const QSizeF &page, const QRectF &bounds);

} // namespace ClearArrangement
