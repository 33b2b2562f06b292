// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/infocommand.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linereader.h>

#include <QCommandLineParser>

void InfoCommand::describe(QCommandLineParser &parser) const
{
    describeCommand(parser, "info",
                    CommandLine::tr("Counts what is in a diagram and lists what is off in it.\n"
                                    "The exit code is 3 when anything is."),
                    {{"file", CommandLine::tr("The file to read.")}});
    parser.addOptions({CommandOptions::forHelp(), CommandOptions::forLanguage(),
                       CommandOptions::forFrom(), CommandOptions::forJson()});
}

bool InfoCommand::read(LineReader &reader) const
{
    CommandLine &line = reader.line();
    line.action = CommandLine::Action::Info;
    if (!reader.refuseOthers(CommandLine::tr("--%1 does not go with info")))
        return false;
    line.isJson = reader.isSet(CommandOptions::forJson());
    if (line.documents.size() != 1)
        return reader.refuse(
            CommandLine::tr("info takes one file, not %1").arg(line.documents.size()));
    return reader.readSource();
}
