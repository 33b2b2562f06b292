// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndexList>
#include <QPersistentModelIndex>

class FishEditor;
class FishModel;
class SpearItem;

/** The selection of an editor as subjects. */
namespace SelectedSubjects {

/** The subjects whose spears are selected in @p editor, in document order. */
QModelIndexList of(const FishEditor &editor);

/** The spears of the subjects of @p model at @p indexes, as far as there are any. */
QList<SpearItem *> spearsOf(const FishModel &model, const QList<QPersistentModelIndex> &indexes);

/** Selects the spears of the subjects of @p model at @p indexes, as far as there are any, and
 * nothing else. */
void select(FishEditor &editor, const FishModel &model,
            const QList<QPersistentModelIndex> &indexes);

} // namespace SelectedSubjects
