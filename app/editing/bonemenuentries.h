// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class ActionSet;
class FishEditor;
class QMenu;
class QTreeView;

/**
 * Has the context menu of a bone in @p editor offer the program's actions in place of the editor's
 * own: those of the editor's menu in the present mode, the menu @p marks, and the clipboard. @p
 * actions are those that the set has when the menu opens; both must outlive the editor.
 */
void offerActionsInBoneMenu(FishEditor &editor, const ActionSet &actions, QMenu *marks);

/**
 * As above, in the context menu of @p tree, which selects the subjects whose bones @p editor has
 * selected. It is about all of them.
 */
void offerActionsInTreeMenu(QTreeView &tree, FishEditor &editor, const ActionSet &actions,
                            QMenu *marks);
