// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <fishbone/drawing/drawinglook.h>
#include <fishbone/drawing/settleddrawing.h>
#include <fishbone/drawing/speartree.h>

/**
 * Lays out the spears below a head in three passes: bring them in line with their subjects, take
 * their sizes, place them; the look does the latter two. The tree is walked once, on construction.
 */
class FishLayout
{
public:
    /** The layout of @p head and all below it in @p look; the classic one when that is null. */
    explicit FishLayout(SpearItem *head, std::shared_ptr<const DrawingLook> look = nullptr);

    /** Sets the expand flag of every spear but the head. */
    void expandBones(bool expand);
    /** The first pass: resets every spear, its line as well. */
    void refreshSpears();
    /** The second pass. */
    void sizeSpears();
    /** The third pass. */
    void placeSpears();
    /** All three; what is as it should be is not touched, so that it is not painted anew either.
     * When the drawing stands as @p settled, only that is found out. Returns whether there was more
     * to do, and notes how the drawing stands then. */
    bool update(SettledDrawing &settled);
    /** Number of spears, text boxes and icons. */
    int itemCount() const;

    const SpearTree &tree() const { return m_tree; }
    const DrawingLook *look() const { return m_look.get(); }

private:
    template <typename Refresh, typename Visit>
    void refreshAll(Refresh refresh, Visit visit);
    void noteIn(SettledDrawing &settled) const;
    static void refreshButton(const SpearTree::Entry &entry);

    SpearTree m_tree;
    std::shared_ptr<const DrawingLook> m_look;
};
