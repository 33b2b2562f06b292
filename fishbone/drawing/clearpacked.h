// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearcolumns.h>
#include <fishbone/drawing/clearlabel.h>
#include <fishbone/drawing/clearshapes.h>

#include <vector>

/**
 * A category as it was packed last, with all below it. As long as nothing of it changes it is not
 * packed again: who types into one category does not wait for the others.
 */
class ClearPacked
{
public:
    /** Whether it is @p category of @p tree, which goes to both sides or not and has its head left
     * or not. */
    bool isOf(const ClearTree &tree, const std::vector<ClearLabel> &labels, int category,
              bool usesBothSides, bool isHeadLeft) const;
    /** Keeps @p bones, which it was packed to, and forgets the column. */
    void keep(const ClearTree &tree, const std::vector<ClearLabel> &labels, int category,
              bool usesBothSides, bool isHeadLeft, std::vector<ClearShapes::Bone> bones);

    /** The bones, the category's own first. */
    const std::vector<ClearShapes::Bone> &bones() const { return m_bones; }

    ClearColumn column; ///< what it covers; empty when that is not known

private:
    std::vector<ClearLabel> m_labels;
    std::vector<int> m_parents; ///< counted from the category
    std::vector<ClearShapes::Bone> m_bones;
    bool m_usesBothSides = false;
    bool m_isHeadLeft = false;
};
