// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QAbstractItemModel;
class QModelIndex;
class SpearItem;

/// A new spear for the subject behind \a index of \a model, titled with the index's display text
/// and linked with the subject; null for an index without a subject. It has no parent item yet: the
/// caller gives it one, or adds it to a scene, which then owns it.
SpearItem *makeSpear(const QAbstractItemModel &model, const QModelIndex &index, int direction,
                     double spearSize);
