// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/safename.h>

#include <fishbone/base/filenames.h>

#include <QCoreApplication>
#include <QString>

namespace {

bool isDotOrBlank(QChar c)
{
    return c == QLatin1Char('.') || c.isSpace();
}

} // namespace

QString safeFileName(const QString &title)
{
    constexpr int longest = 60; // UTF-16 units, so that every file system takes it
    QString name;
    for (const QChar c : title) {
        const bool isUsable = (c.isPrint() || c.isSurrogate()) &&
                              !FileNames::isForbidden(c, FileNames::System::Windows);
        name.append(isUsable ? c : QChar(QLatin1Char(' ')));
    }
    name = name.simplified().left(longest);
    if (!name.isEmpty() && name.at(name.size() - 1).isHighSurrogate())
        name.chop(1);
    // Windows leaves out dots and blanks at the end, and elsewhere a dot in front hides a file.
    while (!name.isEmpty() && isDotOrBlank(name.at(0)))
        name.remove(0, 1);
    while (!name.isEmpty() && isDotOrBlank(name.at(name.size() - 1)))
        name.chop(1);
    if (FileNames::isDevice(name))
        name.prepend(QLatin1Char('_'));
    return name.isEmpty() ? QCoreApplication::translate("FileName", "Untitled") : name;
}
