// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/inforun.h>

#include <app/commandline.h>
#include <app/convertrun.h>
#include <app/documentreport.h>

#include <fishbone/model/treeitem.h>

int runInfo(const CommandLine &line, QString &message)
{
    const auto head = readDocument(line, message);
    if (!head)
        return CommandLine::failure;
    const DocumentReport report(*head);
    message =
        CommandLine::tr("Format: %1\n").arg(DiagramExchange::name(*line.from)) + report.text();
    return report.findings().isEmpty() ? CommandLine::success : CommandLine::isOff;
}
