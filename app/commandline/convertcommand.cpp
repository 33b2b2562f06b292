// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/convertcommand.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linereader.h>
#include <app/common/formatnames.h>

#include <QCommandLineParser>

void ConvertCommand::describe(QCommandLineParser &parser) const
{
    describeCommand(
        parser, "convert",
        CommandLine::tr("Writes a diagram in another format, or as a picture.\n"
                        "The endings tell the formats. Read: %1.\n"
                        "Written: %2, and png, svg, pdf, html and pptx for pictures.\n"
                        "What is left out, or put where it can be kept, is listed on the error "
                        "output.")
            .arg(FormatNames::ids(DiagramExchange::canRead),
                 FormatNames::ids(DiagramExchange::canWrite)),
        {{"in", CommandLine::tr("The file to read.")},
         {"out", CommandLine::tr("The file to write.")}});
    parser.addOptions({CommandOptions::forHelp(), CommandOptions::forLanguage(),
                       CommandOptions::forFrom(), CommandOptions::forTo(),
                       CommandOptions::forStrict()});
    parser.addOptions(CommandOptions::forPictures());
}

bool ConvertCommand::read(LineReader &reader) const
{
    CommandLine &line = reader.line();
    line.action = CommandLine::Action::Convert;
    if (!reader.refuseOptions({CommandOptions::forExport(), CommandOptions::forJson()},
                              CommandLine::tr("--%1 does not go with convert")))
        return false;
    if (line.documents.size() != 2)
        return reader.refuse(CommandLine::tr("convert takes a file to read and a file to write"));
    line.target = line.documents.takeLast();
    line.isStrict = reader.isSet(CommandOptions::forStrict());
    if (!reader.readSource())
        return false;
    if (!reader.isSet(CommandOptions::forTo()) && reader.writesPicture())
        return reader.readPicture();
    return reader.refuseOptions(CommandOptions::forPictures(),
                                CommandLine::tr("--%1 needs a picture to write")) &&
           reader.readFormat(QStringLiteral("to"), line.target, line.to);
}
