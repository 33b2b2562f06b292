// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>

class ActionSet;
class QMainWindow;
class QMenu;

/** How the actions are arranged in the window. */
namespace Menus {

/** Fills the menu bar and the tool bars of @p window. The menu of its docks and bars is left to it.
 * @p submenus are those that somebody else fills: "language", "look", "page", "recent",
 * "visited". */
void build(QMainWindow *window, const ActionSet &actions, const QHash<QString, QMenu *> &submenus);

} // namespace Menus
