// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/linksafety.h>

#include <QUrl>

#include <algorithm>
#include <iterator>

QString LinkSafety::webOrMail(const QString &link)
{
    const QUrl url(link.trimmed());
    const QString scheme = url.scheme(); // in lower case
    const bool isWeb = scheme == QLatin1String("http") || scheme == QLatin1String("https");
    if (!url.isValid() || (isWeb && url.host().isEmpty()))
        return QString();
    if (!isWeb && scheme != QLatin1String("mailto"))
        return QString();
    return QString::fromLatin1(url.toEncoded());
}

bool LinkSafety::runsCode(const QString &link)
{
    QString seen; // a browser does not see blanks
    std::copy_if(link.cbegin(), link.cend(), std::back_inserter(seen),
                 [](QChar c) { return c > QLatin1Char(' '); });
    const int colon = int(seen.indexOf(QLatin1Char(':')));
    const QString scheme = seen.left(qMax(colon, 0)).toLower(); // none without a colon
    return scheme == QLatin1String("javascript") || scheme == QLatin1String("vbscript") ||
           scheme == QLatin1String("data");
}
