// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/guardedpointer.h>

class SpearItem;

/**
 * A pointer to a spear that turns null when the spear is destroyed. Scenes are cleared and rebuilt
 * at any time, also while a button is held or a menu is open, so whoever keeps a spear across
 * events keeps it through one of these. To make one, include spearitem.h as well.
 */
using SpearPointer = GuardedPointer<SpearItem>;
