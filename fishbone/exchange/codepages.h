// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class ImportedTree;

/** Texts of older programs, in the code page of their country. */
namespace CodePages {

/**
 * The text of @p bytes, which are no UTF-8: GB 18030 or Windows-1252, whichever they fit, and
 * @p tree notes which one that is. Nothing when they fit none, and
 * @p tree fails.
 */
std::optional<QString> decode(const QByteArray &bytes, ImportedTree &tree);

} // namespace CodePages
