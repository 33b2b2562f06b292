// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class ActionSet;
class QMainWindow;
class QMenu;

/** How the actions are arranged in the window. */
namespace Menus {

/** Fills the menu bar and the tool bars of @p window. The menu of its docks and bars is left to it.
 */
void build(QMainWindow *window, const ActionSet &actions, QMenu *visited);

} // namespace Menus
