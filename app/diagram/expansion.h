// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class FishEditor;
class SpearItem;
class TreeItem;

/** How far the bones of a drawing are expanded. */
namespace Expansion {

/** Every level of bones; the alternative to a number of levels. */
constexpr int allLevels = -1;

/**
 * Expands @p levels levels of bones below the main bones, whose spears are made where they are
 * missing, and contracts what lies deeper; allLevels, or any negative number, expands all. Lays out
 * anew.
 */
void expandLevels(FishEditor &editor, int levels);

/** Is told that @c done of @c total subjects have their bones; false ends the making. */
using Progress = std::function<bool(int done, int total)>;

/**
 * Makes the bones that are missing in what @p editor shows, contracted, which is most of the work
 * of expanding all. False when @p progress ended it; what was made until then stays for the next
 * time.
 */
bool makeBones(FishEditor &editor, const Progress &progress);

/**
 * Expands or contracts one spear, whose child spears are made where they are missing. Does not lay
 * out: one FishEditor::updateFish() follows any number of these.
 */
void setExpanded(FishEditor &editor, SpearItem &spear, bool expanded);

/**
 * Expands what is above @p subject, so that it has a visible spear, as setExpanded() does; whether
 * anything had to be.
 */
bool expandAbove(FishEditor &editor, const TreeItem &subject);

} // namespace Expansion
