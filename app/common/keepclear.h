// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QRect;
class QWidget;

/** Windows that do not cover what they are about. */
namespace KeepClear {

/**
 * Moves @p window, if it covers any of @p place on the screen, to the nearest place where it does
 * not; it becomes as small as it can be where it has no room otherwise.
 */
void of(const QRect &place, QWidget &window);

} // namespace KeepClear
