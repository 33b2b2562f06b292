// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/safename.h>

#include <QCoreApplication>
#include <QString>

QString safeFileName(const QString &title)
{
    constexpr int longest = 60; // UTF-16 units, so that every file system takes it
    QString name;
    for (const QChar c : title) {
        const bool isUsable = c.isPrint() && !QStringLiteral("/\\:*?\"<>|").contains(c);
        name.append(isUsable ? c : QChar(QLatin1Char(' ')));
    }
    name = name.simplified().left(longest);
    if (!name.isEmpty() && name.at(name.size() - 1).isHighSurrogate())
        name.chop(1);
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    while (name.endsWith(QLatin1Char('.')))
        name.chop(1);
    return name.trimmed().isEmpty() ? QCoreApplication::translate("FileName", "Untitled")
                                    : name.trimmed();
}
