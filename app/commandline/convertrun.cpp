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

#include <QBuffer>
#include <QFile>

#include <cstdio>

namespace {

/** The name that stands for the standard input and output. */
const QString pipeName = QStringLiteral("-");

/** Reads a diagram from the standard input, of which no more is kept than a reader takes. */
std::unique_ptr<TreeItem> readPipe(DiagramExchange::Format format, QString *reason,
                                   ExchangeReport *report)
{
    QFile input;
    QByteArray bytes;
    if (input.open(stdin, QIODevice::ReadOnly)) {
        QByteArray part;
        do {
            part = input.read(DiagramExchange::maximalBytes + 1 - bytes.size());
            bytes += part;
        } while (!part.isEmpty());
    }
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return DiagramExchange::read(buffer, format, reason, report);
}

/** Writes a diagram to the standard output. */
bool writePipe(const TreeItem &head, DiagramExchange::Format format, QString *reason)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!DiagramExchange::write(buffer, head, format, reason))
        return false;
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && output.write(buffer.data()) == buffer.size() &&
        output.flush())
        return true;
    *reason = output.errorString();
    return false;
}

/** Writes @p head as @p line says; returns an exit code. */
int write(std::unique_ptr<TreeItem> head, const CommandLine &line, QString &message)
{
    if (!line.to)
        return drawPicture(std::move(head), line, message);
    QString reason;
    if (line.target == pipeName ? writePipe(*head, *line.to, &reason)
                                : DiagramExchange::writeFile(line.target, *head, *line.to, &reason))
        return CommandLine::success;
    message = CommandLine::tr("cannot write %1: %2").arg(line.target, reason);
    return CommandLine::failure;
}

} // namespace

std::unique_ptr<TreeItem> readDocument(const CommandLine &line, QString &message,
                                       ExchangeReport &report)
{
    const QString source = line.documents.constFirst();
    if (DocumentLoader::isFromNetwork(source))
        return fetchDiagram(source, message);
    QString reason;
    auto head = source == pipeName ? readPipe(*line.from, &reason, &report)
                                   : DiagramExchange::readFile(DocumentLoader::localPath(source),
                                                               *line.from, &reason, &report);
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
