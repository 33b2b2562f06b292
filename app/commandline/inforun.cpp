// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/inforun.h>

#include <app/commandline/commandline.h>
#include <app/commandline/convertrun.h>
#include <app/files/documentreport.h>
#include <app/files/importsummary.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/model/treeitem.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/** @p report as JSON in plain ASCII, which is the same in every locale. */
QString jsonOf(const DocumentReport &report, DiagramExchange::Format format)
{
    QJsonArray findings;
    for (const DocumentReport::Finding &finding : report.findings())
        findings.append(QJsonObject{{QStringLiteral("place"), finding.place},
                                    {QStringLiteral("title"), finding.title},
                                    {QStringLiteral("reason"), finding.reason}});
    const QJsonObject object{{QStringLiteral("version"), 1},
                             {QStringLiteral("format"), DiagramExchange::id(format)},
                             {QStringLiteral("title"), report.title()},
                             {QStringLiteral("subjects"), report.subjects()},
                             {QStringLiteral("mainBones"), report.mainBones()},
                             {QStringLiteral("levels"), report.levels()},
                             {QStringLiteral("links"), report.links()},
                             {QStringLiteral("ownStyles"), report.styles()},
                             {QStringLiteral("findings"), findings}};
    QString ascii;
    for (const QChar letter : QString::fromUtf8(QJsonDocument(object).toJson())) {
        if (letter.unicode() < 128)
            ascii += letter;
        else
            ascii += QStringLiteral("\\u%1").arg(letter.unicode(), 4, 16, QLatin1Char('0'));
    }
    return ascii;
}

} // namespace

int runInfo(const CommandLine &line, QString &message)
{
    ExchangeReport read;
    const auto head = readDocument(line, message, read);
    if (!head)
        return CommandLine::failure;
    ImportSummary::print(line.documents.constFirst(), read);
    const DocumentReport report(*head);
    if (line.isJson)
        message = jsonOf(report, *line.from);
    else
        message =
            CommandLine::tr("Format: %1\n").arg(DiagramExchange::name(*line.from)) + report.text();
    return report.findings().isEmpty() ? CommandLine::success : CommandLine::isOff;
}
