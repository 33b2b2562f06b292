// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class FishModel;
class QAbstractItemModel;
class QModelIndex;
class SpearItem;

/**
 * A new spear for the subject behind @p index of @p model, titled with the index's display text and
 * linked with the subject; null for an index without a subject. It has no parent item yet: the
 * caller gives it one, or adds it to a scene, which then owns it. Every spear of a subject is made
 * here.
 */
SpearItem *makeSpear(const QAbstractItemModel &model, const QModelIndex &index, int direction,
                     double spearSize);

/**
 * Makes the spears that show the subjects of a model. Every function leaves alone what has a spear
 * already, needs no recursion and touches each subject once.
 */
class SpearBuilder
{
public:
    /** The extra height of every spear that is made from scratch. */
    static constexpr double spearSize = 20.0;

    explicit SpearBuilder(const FishModel &model);

    /**
     * The direction of a new spear in @p row below @p parent: 0 on even levels, on level 1 (the
     * main bones) 1 and -1 in turn, deeper down that of the spear two levels up.
     */
    static int directionFor(const SpearItem *parent, int level, int row);

    /**
     * The head of the diagram under @p root with its main bones; null without a subject. The
     * caller adds it to a scene.
     */
    SpearItem *buildHead(const QModelIndex &root) const;
    /** Makes the missing spears of the children of @p index, which must have one itself. */
    void buildChildren(const QModelIndex &index) const;
    /** Makes the missing spears of all descendants of @p index, which must have one itself. */
    void buildDescendants(const QModelIndex &index) const;
    /**
     * Makes new spears for @p index, standing on @p level in @p row below @p parent, and for all
     * its descendants, all contracted. A link of the top subject goes to @p head.
     */
    SpearItem *buildSubtree(const QModelIndex &index, int level, int row, SpearItem *parent,
                            SpearItem *head) const;

private:
    SpearItem *makeBone(const QModelIndex &index, SpearItem *parent, int direction,
                        double size) const;

    const FishModel &m_model;
};

/** Gives @p spear the icon of its subject's link, or none; an icon that is right already stays. */
void updateLinkItem(SpearItem *spear);
