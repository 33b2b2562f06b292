// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class TreeItem;

/** The diagram that a user sees at the very first start: it is about itself and teaches the keys.
 */
namespace Welcome {

/** The diagram, in the language of the program. */
std::unique_ptr<TreeItem> diagram();

/** Whether nobody has been welcomed on this account before; asked a second time, false. */
bool isFirstStart();

} // namespace Welcome
