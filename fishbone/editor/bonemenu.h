// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class FishEditor;
class QMenu;
class SpearItem;

/** The context menu of a bone. */
class BoneMenu
{
public:
    /** Adds to a menu for a spear, which may be null, or takes off it. */
    using Filler = std::function<void(QMenu &menu, SpearItem *spear)>;

    /** Speaks for @p editor, which must outlive it. */
    explicit BoneMenu(FishEditor &editor)
        : m_editor(editor)
    {
    }

    /** What a host adds behind the entries of the library's own. */
    void setFiller(const Filler &filler) { m_filler = filler; }
    /** Fills @p menu for @p spear, which may be null. */
    void fill(QMenu &menu, SpearItem *spear) const;
    /** Shows the menu of @p spear, which may be null, at the mouse, and does what is chosen. */
    void show(SpearItem *spear) const;

private:
    bool isHeadOfTasks(const SpearItem &spear) const;
    void addOwnEntries(QMenu &menu, const SpearItem *spear) const;
    void run(int entry, const SpearItem &spear) const;

    FishEditor &m_editor;
    Filler m_filler;
};
