// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QString>
#include <QUrl>

/**
 * What systems make of the names of files. Names and links travel with diagrams from one system to
 * another, so that what one of them has a meaning for matters on all. Each rule is a function of
 * its arguments alone.
 */
namespace FileNames {

/** Whose rules. */
enum class System {
    Unix,    ///< case counts, and only "/" is special
    Mac,     ///< case does not count, nor how letters with accents are composed
    Windows, ///< case does not count, and many names and characters are special
};

/** The system that this is built for. */
constexpr System here()
{
#if defined(Q_OS_WIN)
    return System::Windows;
#elif defined(Q_OS_MACOS)
    return System::Mac;
#else
    return System::Unix;
#endif
}

/** Whether a name cannot have @p c in it; "\" and control characters in none. */
FISHBONE_EXPORT bool isForbidden(QChar c, System system);
/** Whether @p name, in any case and whatever follows a dot in it, is that of a device of Windows,
 * which opens that in place of a file: "CON", "nul.txt", "COM1". */
FISHBONE_EXPORT bool isDevice(const QString &name);
/** Whether @p first and @p second, two absolute paths without links, name one file. */
FISHBONE_EXPORT bool areSame(const QString &first, const QString &second, System system = here());
/** Whether @p text is an absolute path of Windows: with a drive, as "C:\a" and "C:/a", or of
 * another computer, as "\\server\share\a". */
FISHBONE_EXPORT bool isWindowsPath(const QString &text);
/** What @p link leads to: a file for a path of Windows, whose drive is no scheme of a URL; else
 * the URL that it is, as users write them. */
FISHBONE_EXPORT QUrl toUrl(const QString &link);

} // namespace FileNames
