// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <fishbone/fishbone_export.h>

class SpearItem;

/// A pointer to a spear that turns null when the spear is destroyed. Scenes are cleared and rebuilt
/// at any time, also while a button is held or a menu is open, so whoever keeps a spear across
/// events keeps it through one of these.
class FISHBONE_EXPORT SpearPointer
{
public:
    SpearPointer() = default;
    /// Guards \a spear, which may be null.
    SpearPointer(SpearItem *spear);

    /// The spear, or null when there is none (any more).
    SpearItem *get() const { return m_cell ? *m_cell : nullptr; }

private:
    std::shared_ptr<SpearItem *> m_cell;
};
