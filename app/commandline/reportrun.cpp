// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/reportrun.h>

#include <app/commandline/commandline.h>
#include <app/commandline/convertrun.h>
#include <app/files/importsummary.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/treeitem.h>

int runReport(const CommandLine &line, QString &message)
{
    ExchangeReport read;
    const auto head = readDocument(line, message, read);
    if (!head)
        return CommandLine::failure;
    ImportSummary::print(line.documents.constFirst(), read);
    QString reason;
    if (MeetingReport(head.get()).write(line.target, &reason))
        return CommandLine::success;
    message = CommandLine::tr("cannot write %1: %2").arg(line.target, reason);
    return CommandLine::failure;
}
