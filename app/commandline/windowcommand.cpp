// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/windowcommand.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linereader.h>

#include <QCommandLineParser>

void WindowCommand::describe(QCommandLineParser &parser) const
{
    parser.setApplicationDescription(CommandLine::tr(
        "Edits fishbone diagrams of tasks.\n\n"
        "These commands need no display:\n"
        "  convert   write a diagram in another format, or as a picture\n"
        "  info      say what is in a diagram, and what is off in it\n"
        "  report    write what is sent round after a meeting\n"
        "  check     name what is off in files, line by line\n"
        "  merge     merge two versions of a diagram, for git\n"
        "\"fishbone convert --help\" tells more. A file of such a name is ./convert."));
    parser.addOptions({CommandOptions::forHelp(), CommandOptions::forVersion(),
                       CommandOptions::forLanguage(), CommandOptions::forTranslations(),
                       CommandOptions::forExport()});
    parser.addOptions(CommandOptions::forPictures());
    parser.addPositionalArgument(QStringLiteral("documents"),
                                 CommandLine::tr("Diagrams to open: files, or http and https URLs. "
                                                 "Without one, a new diagram."),
                                 QStringLiteral("[document...]"));
}

bool WindowCommand::read(LineReader &reader) const
{
    return reader.refuseOptions({CommandOptions::forFrom()},
                                CommandLine::tr("--%1 needs convert, info, report or check")) &&
           reader.refuseOptions({CommandOptions::forJson()}, CommandLine::tr("--%1 needs info")) &&
           reader.refuseOptions({CommandOptions::forTo(), CommandOptions::forStrict()},
                                CommandLine::tr("--%1 needs convert")) &&
           readExport(reader);
}

/** Reads the options of an export; false when they make no sense. */
bool WindowCommand::readExport(LineReader &reader)
{
    CommandLine &line = reader.line();
    if (!reader.isSet(CommandOptions::forExport()))
        return reader.refuseOptions(CommandOptions::forPictures(),
                                    CommandLine::tr("--%1 needs --export"));
    line.action = CommandLine::Action::Export;
    line.target = reader.valueOf(CommandOptions::forExport());
    if (!reader.writesPicture())
        return reader.refuse(
            CommandLine::tr(
                "the format of \"%1\" is unknown: the name must end in .png, .svg, .pdf, .html or "
                ".pptx")
                .arg(line.target));
    if (line.documents.size() != 1)
        return reader.refuse(
            CommandLine::tr("--export takes one document, not %1").arg(line.documents.size()));
    return reader.readPicture();
}
