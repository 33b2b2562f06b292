// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The language of what the program shows. */
namespace Language {

/**
 * Installs the translations for @p language ("zh" or "en"), for the system's language when it is
 * empty: the program's and the library's, as far as they are built in, and the toolkit's. The
 * translators live as long as the application object, which must exist.
 */
void install(const QString &language);

} // namespace Language
