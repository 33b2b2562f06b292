// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/mergecommand.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linereader.h>

#include <QCommandLineParser>

void MergeCommand::describe(QCommandLineParser &parser) const
{
    describeCommand(
        parser, "merge",
        CommandLine::tr("Merges what changed from the base to theirs into ours, subject by "
                        "subject, as git asks a merge driver to.\n"
                        "What both changed differently is kept as in ours, with a cause that says "
                        "so below it; the exit code is 1 then."),
        {{"base", CommandLine::tr("The version that both come from.")},
         {"ours", CommandLine::tr("The version to merge into; it is replaced.")},
         {"theirs", CommandLine::tr("The other version.")}});
    parser.addOptions({CommandOptions::forHelp(), CommandOptions::forLanguage()});
}

bool MergeCommand::read(LineReader &reader) const
{
    CommandLine &line = reader.line();
    line.action = CommandLine::Action::Merge;
    const QString reason = CommandLine::tr("--%1 does not go with merge");
    if (!reader.refuseOthers(reason) || !reader.refuseOptions({CommandOptions::forFrom()}, reason))
        return false;
    return line.documents.size() == 3 ||
           reader.refuse(
               CommandLine::tr("merge takes the files of the base, of ours and of theirs"));
}
