// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class SpearItem;

/** Which spears lead from the header to those that are selected, hovered or linked. */
class SpearChain
{
public:
    /** That of @p spear, which does not stand out to begin with. */
    explicit SpearChain(SpearItem &spear);

    /** How many items there are above the spear. */
    int depth() const;
    /** Whether the spear or one below it stands out. */
    bool standsOut() const { return m_count > 0; }
    /** The spear itself stands out, or does no longer. */
    void note(bool isOut);
    /** The spear is about to lose its parent, or ends. */
    void leaveParent();
    /** The spear has got a parent. */
    void joinParent();

private:
    Q_DISABLE_COPY(SpearChain)

    void tellParent(int by);
    static void change(SpearItem *spear, int by);

    SpearItem &m_spear;
    int m_count = 0; ///< how many child spears stand out, the spear itself included
    bool m_isOut = false;
};
