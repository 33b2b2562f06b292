// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QPointer>

class FishModel;
class SpearItem;
class SpearStyle;
class TreeItem;

/** What a spear knows of the subject that it shows: its end of the link between the two. */
class SpearSubject
{
public:
    /** That of @p spear, none to begin with. */
    explicit SpearSubject(SpearItem &spear);

    /** The subject, or null. */
    TreeItem *item() const { return m_item; }
    /** See SpearItem::setModelIndex(). */
    void setIndex(const QModelIndex &index);
    /** Where the subject stands in its model now; invalid without a subject in a model. */
    QModelIndex index() const;
    /** Makes @p item the subject without touching the item's own link. */
    void attach(TreeItem *item);
    /** The subject is gone or has another spear. */
    void forget();
    /** The spear ends: the subject has none from now on. */
    void leave();

    /** The subject's own style, or the global one. Never null. */
    SpearStyle *style() const;
    /** Whether the subject may be dragged; true without a subject. */
    bool isMovable() const;
    /** Sets or clears the item flag from isMovable(). */
    void updateMovableFlag();
    /** Sets the tool tip of the spear to the subject's. */
    void updateToolTip();

private:
    Q_DISABLE_COPY(SpearSubject)

    SpearItem &m_spear;
    TreeItem *m_item = nullptr;
    QPointer<const FishModel> m_model;
};
