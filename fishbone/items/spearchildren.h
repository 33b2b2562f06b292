// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class SpearItem;

/** The child spears of a spear, and whether they are shown. */
class SpearChildren
{
public:
    /** Those of @p spear, which shows none to begin with. */
    explicit SpearChildren(SpearItem &spear);

    /** See SpearItem::childSpears(). */
    QList<SpearItem *> find() const;
    /** See SpearItem::knownChildSpears(). */
    const QList<SpearItem *> &known() const;
    /** A child item came or went. */
    void forget();
    /** How often one did, in the whole process. */
    static quint64 changes() { return m_changes; }
    /** See SpearItem::stackChildrenInRowOrder(). */
    void stackInRowOrder();

    /** Whether the child spears are shown. */
    bool areShown() const { return m_areShown; }
    /** Stores that, and shows or hides them. Who hears of the selection may end the spear. */
    void setShown(bool shown);
    /** Shows or hides them again, whatever was done to them meanwhile. */
    void show();

private:
    Q_DISABLE_COPY(SpearChildren)

    static inline quint64 m_changes = 0;

    SpearItem &m_spear;
    mutable QList<SpearItem *> m_known;
    mutable bool m_isKnown = true; ///< whether m_known is up to date
    bool m_areShown = false;
};
