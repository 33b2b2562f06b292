// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/guardedpointer.h>
#include <fishbone/items/spearappearance.h>
#include <fishbone/items/spearchain.h>
#include <fishbone/items/spearchildren.h>
#include <fishbone/items/spearcompanions.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearplace.h>
#include <fishbone/items/spearsubject.h>
#include <fishbone/items/speartitle.h>

/** The parts of a spear, which does nothing but put them together. */
struct SpearParts
{
    Q_DISABLE_COPY(SpearParts)

    /** Those of @p spear, for the rest see SpearItem::SpearItem(). */
    SpearParts(SpearItem &spear, const QString &text, int direction, double spearSize);
    /** Those of @p spear. */
    static SpearParts &of(const SpearItem &spear) { return *spear.m_parts; }

    /** The spear knows its parts now. */
    void begin();
    /** The spear ends. */
    void end();
    /** The spear has changed, as its item says. */
    void follow(QGraphicsItem::GraphicsItemChange change, const QVariant &value);

    /** The geometry of @p item is about to change, which only items may tell the toolkit. */
    static void geometryChanges(SpearItem &item) { item.prepareGeometryChange(); }
    /** Has the processor fetch the parts themselves, and what the toolkit keeps of the spear. */
    static void prefetch(const SpearItem &item);
    /** Then what the parts refer to. */
    void prefetchOthers() const;

    SpearItem &spear;
    SpearSubject subject;
    SpearChildren children;
    SpearCompanions companions;
    SpearTitle title;
    SpearChain chain;
    SpearAppearance appearance;
    SpearPlace place;
    GuardCell<SpearItem> guard;
};
