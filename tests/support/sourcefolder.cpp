// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/support/sourcefolder.h>

QString TestSupport::sourceFile(const QString &path)
{
    return QStringLiteral(FISHBONE_SOURCE_DIR "/") + path;
}
