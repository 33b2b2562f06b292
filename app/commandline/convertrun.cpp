// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/convertrun.h>

#include <app/commandline/commandline.h>
#include <app/commandline/exportrun.h>
#include <app/files/documentloader.h>
#include <app/files/importsummary.h>

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/model/treeitem.h>

namespace {

/** Writes @p head as @p line says; returns an exit code. */
int write(std::unique_ptr<TreeItem> head, const CommandLine &line, QString &message)
{
    if (!line.to)
        return drawPicture(std::move(head), line, message);
    QString reason;
    if (DiagramExchange::writeFile(line.target, *head, *line.to, &reason))
        return CommandLine::success;
    message = CommandLine::tr("cannot write %1: %2").arg(line.target, reason);
    return CommandLine::failure;
}

} // namespace

std::unique_ptr<TreeItem> readDocument(const CommandLine &line, QString &message,
                                       ExchangeReport &report)
{
    const QString source = line.documents.constFirst();
    QString reason;
    auto head =
        DiagramExchange::readFile(DocumentLoader::localPath(source), *line.from, &reason, &report);
    if (!head)
        message = CommandLine::tr("cannot read %1: %2").arg(source, reason);
    return head;
}

int runConvert(const CommandLine &line, QString &message)
{
    ExchangeReport read;
    auto head = readDocument(line, message, read);
    if (!head)
        return CommandLine::failure;
    ImportSummary::print(line.documents.constFirst(), read);
    ExchangeReport written;
    if (line.to)
        written = DiagramExchange::lossesOf(*head, *line.to);
    else if (SlideExport::isSlide(line.target))
        written = DiagramExchange::lossesOfSlide(*head, line.look.view.look == DiagramLook::Clear);
    ImportSummary::print(line.target, written);
    if (line.isStrict && (read.losesContent() || written.losesContent())) {
        message =
            CommandLine::tr("%1 was not written: something would be left out").arg(line.target);
        return CommandLine::failure;
    }
    return write(std::move(head), line, message);
}
