// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace TestSupport {

/** The path of the file or folder @p path of the project's sources. */
QString sourceFile(const QString &path);

} // namespace TestSupport
