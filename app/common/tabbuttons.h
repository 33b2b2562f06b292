// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QTabWidget;

/** The buttons that scroll through tabs. */
namespace TabButtons {

/** Names those of @p tabs in the language of now: the toolkit names them once and for all. */
void name(const QTabWidget &tabs);

} // namespace TabButtons
