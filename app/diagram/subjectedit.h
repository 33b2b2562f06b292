// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/undo/undocommand.h>

#include <QModelIndexList>

#include <functional>
#include <memory>

class DiagramSession;
class EditAttributes;
class QJsonObject;
class TreeItem;

/** Edits of a subject's attributes as steps of the undo history. */
namespace SubjectEdit {

/** Runs @p command as a step named @p name. False, without a step, when it changes nothing. */
bool run(DiagramSession &session, std::unique_ptr<EditAttributes> command,
         const UndoCommand::Name &name);

/**
 * Makes the subject at @p index what @p change makes of a copy of its attributes, in one step with
 * the name @p name. False, without a step, when nothing differs.
 */
bool apply(DiagramSession &session, const QModelIndex &index, const UndoCommand::Name &name,
           const std::function<void(TreeItem &)> &change);

/**
 * As apply(), for all subjects at @p indexes in one step. False when none of them differs.
 */
bool applyToAll(DiagramSession &session, const QModelIndexList &indexes,
                const UndoCommand::Name &name, const std::function<void(TreeItem &)> &change);

/**
 * Gives each subject at @p indexes the attributes that @p change makes of its own, both as
 * EditAttributes::stateOf() makes them, in one step named @p name. False when none differs.
 */
bool changeAll(DiagramSession &session, const QModelIndexList &indexes,
               const UndoCommand::Name &name,
               const std::function<QJsonObject(const QJsonObject &state)> &change);

/** Asks for a link for the subject at @p index, beginning with the one it has; one step. */
void editLink(DiagramSession &session, const QModelIndex &index);
/** Opens the link of the subject at @p index, if it has one. */
void openLink(const DiagramSession &session, const QModelIndex &index);

} // namespace SubjectEdit
