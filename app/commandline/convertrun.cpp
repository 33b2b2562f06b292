// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/convertrun.h>

#include <app/commandline/commandline.h>
#include <app/commandline/exportrun.h>
#include <app/files/documentloader.h>

#include <fishbone/model/treeitem.h>

std::unique_ptr<TreeItem> readDocument(const CommandLine &line, QString &message)
{
    const QString source = line.documents.constFirst();
    QString reason;
    auto head = DiagramExchange::readFile(DocumentLoader::localPath(source), *line.from, &reason);
    if (!head)
        message = CommandLine::tr("cannot read %1: %2").arg(source, reason);
    return head;
}

int runConvert(const CommandLine &line, QString &message)
{
    auto head = readDocument(line, message);
    if (!head)
        return CommandLine::failure;
    if (!line.to)
        return drawPicture(std::move(head), line, message);
    QString reason;
    if (DiagramExchange::writeFile(line.target, *head, *line.to, &reason))
        return CommandLine::success;
    message = CommandLine::tr("cannot write %1: %2").arg(line.target, reason);
    return CommandLine::failure;
}
