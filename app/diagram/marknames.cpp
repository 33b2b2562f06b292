// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/marknames.h>

QStringList MarkNames::statuses()
{
    return {tr("none"),      tr("unknown"),       tr("cancelled"),
            tr("finished"),  tr("finished late"), tr("postponed"),
            tr("under way"), tr("waiting"),       tr("waiting for approval")};
}

QStringList MarkNames::verdicts()
{
    return {tr("none"),      tr("suspected"), tr("being checked"),
            tr("confirmed"), tr("ruled out"), tr("root cause")};
}
