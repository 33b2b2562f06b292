// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QPainter;
class SpearItem;

/** What the classic look shows of a team's marks. */
namespace ClassicMarks {

/** Paints what shows the verdict of @p spear behind its title, in the coordinates of that: dots
 * below a suspicion, strokes below what is being checked, a line below what is confirmed and
 * through what is ruled out, a frame around the root cause. Nothing without a verdict. */
void paint(QPainter &painter, const SpearItem &spear);

/** Paints how many have voted for @p spear on its bone, in its coordinates: where no title of its
 * own or of a bone below it stands, and within what the spear covers without votes, too. Nothing
 * without votes. */
void paintVotes(QPainter &painter, const SpearItem &spear);

} // namespace ClassicMarks
