// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlabel.h>
#include <fishbone/drawing/clearoptions.h>
#include <fishbone/drawing/clearoutline.h>
#include <fishbone/drawing/cleartree.h>

#include <QSizeF>

#include <vector>

class ClearPacked;

/**
 * Packs the bones of each category: where every bone branches off, how long it is and where its
 * text stands.
 *
 * Places are given in the skewed coordinates of a category: "across" is the distance from the
 * backbone, "along" the distance from the category's bone, away from the head, measured level.
 * Slanted bones then have one value along and level ones one value across, so that packing along
 * the axes is exact. Each bone is packed with all below it from the leaves up, in O(n log² n) and
 * without recursion.
 */
class ClearShapes
{
public:
    /** One bone, in the coordinates of its category. */
    struct Bone
    {
        qreal along = 0; ///< its joint
        qreal across = 0;
        qreal length = 0; ///< slanted bones reach so far across, level ones along
        qreal lead = 0;   ///< and slanted ones below a level bone have a twig of this length before
        qreal textAlong = 0;     ///< from the end of the bone to the near middle of the text
        bool isMirrored = false; ///< whether it is on the side towards the head
    };

    /** Packs @p tree with one of @p labels for each subject; @p labels lives on. Categories are
     * taken from @p packed, which has one for each row, where they are the same. */
    ClearShapes(const ClearTree &tree, const std::vector<ClearLabel> &labels,
                const ClearOptions &options, std::vector<ClearPacked> &packed);

    const Bone &bone(int index) const { return m_bones[std::size_t(index)]; }

    /** Whether the bones of @p category go to both sides. */
    bool usesBothSides(int category) const;

    /** The box of @p category: half its width and its height. */
    QSizeF boxOf(int category) const;
    /** Where the middle of the badge of a contracted category stands on its bone. */
    static constexpr qreal categoryBadge = 22;

    /** Whether bones of @p level are slanted. */
    static bool isSlanted(int level) { return level % 2 == 1; }

    /** How many steps of contours were looked at: a measure of the time it took. */
    quint64 work() const { return m_work; }

private:
    void packTree(int category);
    void packLevel(int index);
    void packSlanted(int index);
    void packCategory(int index);
    void place(int child, qreal along, qreal across, bool isMirrored = false);
    void settle(int category);
    void decideSides();
    ClearBox textBox(int index, qreal along, qreal across) const;
    qreal labelWidth(int index) const;
    ClearOutline takeOutline(int index);

    const ClearTree &m_tree;
    const std::vector<ClearLabel> &m_labels;
    const ClearOptions &m_options;
    std::vector<Bone> m_bones;
    std::vector<ClearOutline> m_outlines;
    std::vector<bool> m_maySwap; ///< whether a bone may come to lie on either side
    quint64 m_work = 0;
};
