// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class FishInfo;
class FishModel;
class QJsonObject;
class QModelIndex;
class UndoCommand;

/** The step of the undo history that pastes a snapshot of subjects, as EditPaste takes it. The
 * copies are new subjects with identities of their own. */
namespace PasteStep {

/** Whether @p subjects are one subject that comes into a @p document, which may be null, in which
 * nothing was done yet: there it becomes the head. */
bool replacesHead(const FishInfo *document, const QJsonObject &subjects);

/** Makes the one subject of @p subjects the head at @p head, and what is below it that of the
 * head. */
std::unique_ptr<UndoCommand> ofHead(FishModel *model, const QModelIndex &head,
                                    const QJsonObject &subjects);

/** Pastes @p subjects below the subject at @p target. */
std::unique_ptr<UndoCommand> below(FishModel *model, const QModelIndex &target,
                                   const QJsonObject &subjects);

} // namespace PasteStep
