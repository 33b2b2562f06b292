// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/checkcommand.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linereader.h>

#include <QCommandLineParser>

void CheckCommand::describe(QCommandLineParser &parser) const
{
    describeCommand(
        parser, "check",
        CommandLine::tr("Names what is off in each file, and why one cannot be read, a line each.\n"
                        "The exit code is 1 when there is anything."),
        {{"files", CommandLine::tr("The files to look at."), "file..."}});
    parser.addOptions(
        {CommandOptions::forHelp(), CommandOptions::forLanguage(), CommandOptions::forFrom()});
}

bool CheckCommand::read(LineReader &reader) const
{
    CommandLine &line = reader.line();
    line.action = CommandLine::Action::Check;
    if (!reader.refuseOthers(CommandLine::tr("--%1 does not go with check")))
        return false;
    if (line.documents.isEmpty())
        return reader.refuse(CommandLine::tr("check takes the files to look at"));
    return !reader.isSet(CommandOptions::forFrom()) ||
           reader.readFormat(QStringLiteral("from"), QString(), line.from);
}
