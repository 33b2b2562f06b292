// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/reportcommand.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linereader.h>

#include <fishbone/exchange/meetingreport.h>

#include <QCommandLineParser>

void ReportCommand::describe(QCommandLineParser &parser) const
{
    describeCommand(
        parser, "report",
        CommandLine::tr("Writes what is sent round after a meeting: the picture, the causes in the "
                        "order of what was found out, what is to be done by whom, and a legend.\n"
                        "The ending .html, .pdf or .md tells the format; .md has its picture in a "
                        "file beside it."),
        {{"file", CommandLine::tr("The file to read.")},
         {"out", CommandLine::tr("The file to write.")}});
    parser.addOptions(
        {CommandOptions::forHelp(), CommandOptions::forLanguage(), CommandOptions::forFrom()});
}

bool ReportCommand::read(LineReader &reader) const
{
    CommandLine &line = reader.line();
    line.action = CommandLine::Action::Report;
    if (!reader.refuseOthers(CommandLine::tr("--%1 does not go with report")))
        return false;
    if (line.documents.size() != 2)
        return reader.refuse(CommandLine::tr("report takes a file to read and a file to write"));
    line.target = line.documents.takeLast();
    if (!MeetingReport::canWrite(line.target))
        return reader.refuse(
            CommandLine::tr(
                "the format of \"%1\" is unknown: the name must end in .html, .pdf or .md")
                .arg(line.target));
    return reader.readSource();
}
