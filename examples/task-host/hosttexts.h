// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

#include <memory>

/** The library's own texts, in menus and the history, in the language of this program. */
namespace HostTexts {

/** Loads them, to be installed in the application; null when their file is not there. */
std::unique_ptr<QTranslator> load();

} // namespace HostTexts
