// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

class TreeItem;

/** The icons of mind maps that say something about a task. */
namespace FreeMindIcons {

/** Gives @p subject what the icon @p name says: a priority, a status or a progress, which is
 * returned. Nothing for an icon that says nothing of that. */
std::optional<int> apply(const QString &name, TreeItem &subject);

} // namespace FreeMindIcons
