// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class FishInfo;
class FishModel;
class QString;
class TreeItem;

/**
 * Moves @p subject below @p parent, or to the top level for null, in front of what stands at
 * @p position there now. False, with nothing changed, when the model refuses.
 *
 * @p document gets the emptied document of a head that leaves the top level. A subject that enters
 * it becomes the head of that document, or of a new one when it is null.
 */
bool moveSubject(FishModel &model, TreeItem *subject, TreeItem *parent, int position,
                 std::unique_ptr<FishInfo> &document);

/** As moveSubject(), but @p subject stands in @p row afterwards, or at the end when past it. */
bool moveSubjectToRow(FishModel &model, TreeItem *subject, TreeItem *parent, int row,
                      std::unique_ptr<FishInfo> &document);

/** Sets the pid of a node of @p model, announced if that changes it. */
void restorePid(FishModel &model, TreeItem *subject, const QString &pid);
