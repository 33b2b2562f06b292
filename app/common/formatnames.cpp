// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/formatnames.h>

#include <QStringList>

QString FormatNames::ids(bool (*can)(DiagramExchange::Format))
{
    QStringList ids;
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        if (can(format))
            ids.append(DiagramExchange::id(format));
    }
    return ids.join(QLatin1String(", "));
}

QString FormatNames::endings(bool (*can)(DiagramExchange::Format))
{
    QStringList endings;
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        const QStringList suffixes =
            can(format) ? DiagramExchange::suffixes(format) : QStringList();
        for (const QString &suffix : suffixes)
            endings.append(QLatin1Char('.') + suffix);
    }
    return endings.join(QLatin1String(", "));
}
