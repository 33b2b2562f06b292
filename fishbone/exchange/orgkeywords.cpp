// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/orgkeywords.h>

#include <fishbone/exchange/taskstatuses.h>

namespace {

struct Keyword
{
    QLatin1String word;
    int status;
};

/** The first word of a status is the one that is written. */
const Keyword keywords[] = {
    {QLatin1String("TODO"), TaskStatuses::waiting},
    {QLatin1String("DONE"), TaskStatuses::finished},
    {QLatin1String("STARTED"), TaskStatuses::running},
    {QLatin1String("CANCELLED"), TaskStatuses::cancelled},
    {QLatin1String("HOLD"), TaskStatuses::postponed},
    {QLatin1String("REVIEW"), TaskStatuses::approval},
    {QLatin1String("CANCELED"), TaskStatuses::cancelled},
    {QLatin1String("NEXT"), TaskStatuses::waiting},
    {QLatin1String("WAITING"), TaskStatuses::waiting},
    {QLatin1String("WAIT"), TaskStatuses::waiting},
    {QLatin1String("DOING"), TaskStatuses::running},
    {QLatin1String("INPROGRESS"), TaskStatuses::running},
    {QLatin1String("IN-PROGRESS"), TaskStatuses::running},
    {QLatin1String("STRT"), TaskStatuses::running},
    {QLatin1String("KILL"), TaskStatuses::cancelled},
    {QLatin1String("DEFERRED"), TaskStatuses::postponed},
};

} // namespace

QString OrgKeywords::wordOf(int status)
{
    for (const Keyword &keyword : keywords) {
        if (keyword.status == status)
            return keyword.word;
    }
    return QString();
}

int OrgKeywords::statusOf(const QString &word)
{
    for (const Keyword &keyword : keywords) {
        if (word == keyword.word)
            return keyword.status;
    }
    return -1;
}
