// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/inforun.h>

#include <app/commandline/commandline.h>
#include <app/commandline/convertrun.h>
#include <app/files/documentreport.h>
#include <app/files/importsummary.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/model/treeitem.h>

int runInfo(const CommandLine &line, QString &message)
{
    ExchangeReport read;
    const auto head = readDocument(line, message, read);
    if (!head)
        return CommandLine::failure;
    ImportSummary::print(line.documents.constFirst(), read);
    const DocumentReport report(*head);
    message =
        CommandLine::tr("Format: %1\n").arg(DiagramExchange::name(*line.from)) + report.text();
    return report.findings().isEmpty() ? CommandLine::success : CommandLine::isOff;
}
