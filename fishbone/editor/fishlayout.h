// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

class SpearItem;

/// Lays out the tree of spears below a head in three passes: bring the spears in line with their
/// subjects, size them from the leaves up, place them from the head down. The tree is walked once,
/// on construction; each pass is linear in the number of spears and does not recurse.
class FishLayout
{
public:
    /// What becomes of the lines until they are placed anew.
    enum class Lines {
        Reset, ///< every line is empty until placeSpears()
        Keep,  ///< lines stay, so that a spear that does not move is not repainted
    };

    explicit FishLayout(SpearItem *head);

    /// Sets the expand flag of every spear but the head.
    void expandBones(bool expand);
    void refreshSpears(Lines lines);
    void sizeSpears();
    void placeSpears();
    /// Number of spears, text boxes and icons.
    int itemCount() const;

private:
    struct Entry
    {
        SpearItem *spear;
        int level;      ///< of the spear's children: 1 for the main bones
        int firstChild; ///< position of the first child's entry; the others follow it
        int childCount;
    };

    void refreshCompanions(const Entry &entry) const;
    void placeAlongSlantedBone(const Entry &parent);
    void placeAlongHorizontalBone(const Entry &parent);

    std::vector<Entry> m_entries; ///< breadth-first, the head in front
};
