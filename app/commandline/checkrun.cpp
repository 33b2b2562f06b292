// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/checkrun.h>

#include <app/commandline/commandline.h>
#include <app/files/documentreport.h>

#include <fishbone/model/treeitem.h>

namespace {

/** What is off in @p file, which is read as @p from or as its ending says. */
QStringList problemsOf(const QString &file, std::optional<DiagramExchange::Format> from)
{
    const auto format = from ? from : DiagramExchange::formatOf(file);
    if (!format || !DiagramExchange::canRead(*format))
        return {CommandLine::tr("the ending names no format that can be read")};
    QString reason;
    const auto head = DiagramExchange::readFile(file, *format, &reason);
    if (!head)
        return {reason};
    QStringList problems;
    const DocumentReport report(*head);
    for (const DocumentReport::Finding &finding : report.findings())
        problems.append(finding.text());
    return problems;
}

} // namespace

int runCheck(const CommandLine &line, QString &message)
{
    for (const QString &file : line.documents) {
        const QStringList problems = problemsOf(file, line.from);
        for (const QString &problem : problems)
            message += QStringLiteral("%1: %2\n").arg(file, problem);
    }
    return message.isEmpty() ? CommandLine::success : CommandLine::failure;
}
