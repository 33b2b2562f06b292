// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** The order of the subjects below one of a merged diagram. */
struct MergeOrder
{
    /**
     * Puts @p members in order: those that stand in both @p ours and @p theirs as the version has
     * them that differs from @p base, each other one behind the one that it follows in its own
     * version. Where both versions have new ones in the same place, their keys decide, so that it
     * does not matter which version is whose. In linear time.
     */
    MergeOrder(const QStringList &members, const QStringList &base, const QStringList &ours,
               const QStringList &theirs);

    QStringList keys;
    bool isConflict = false; ///< both versions have another order, each its own; it is that of ours
};
