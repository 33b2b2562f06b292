// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLibraryInfo>
#include <QString>

/** Where the toolkit in use has what belongs to it. */
namespace ToolkitFolder {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
using Kind = QLibraryInfo::LibraryPath;

inline QString of(Kind kind)
{
    return QLibraryInfo::path(kind);
}
#else
using Kind = QLibraryInfo::LibraryLocation;

inline QString of(Kind kind)
{
    return QLibraryInfo::location(kind);
}
#endif

} // namespace ToolkitFolder
