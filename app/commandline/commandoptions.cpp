// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandoptions.h>

#include <app/commandline/lookchoice.h>
#include <app/common/formatnames.h>
#include <app/common/language.h>

#include <fishbone/exchange/diagramexchange.h>

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QCommandLineOption helpOption()
{
    return {{QStringLiteral("h"), QStringLiteral("help")},
            CommandLine::tr("Show this help and quit.")};
}

QCommandLineOption versionOption()
{
    return {{QStringLiteral("v"), QStringLiteral("version")},
            CommandLine::tr("Show the version and quit.")};
}

QCommandLineOption languageOption()
{
    return {QStringLiteral("language"),
            CommandLine::tr("Show texts in <language>, such as de or zh, instead of the system's."),
            QStringLiteral("language")};
}

QCommandLineOption translationsOption()
{
    return {QStringLiteral("translations"),
            CommandLine::tr("Show the texts that the files in <folder> have, and show them anew "
                            "when these are changed. For translators."),
            QStringLiteral("folder")};
}

} // namespace

namespace CommandOptions {

QCommandLineOption forExport()
{
    return {QStringLiteral("export"),
            CommandLine::tr("Draw the diagram into the picture <file> and quit. The ending .png, "
                            ".svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no "
                            "display."),
            QStringLiteral("file")};
}

QList<QCommandLineOption> forPictures()
{
    QList<QCommandLineOption> options{
        {QStringLiteral("expand"),
         CommandLine::tr("How far to expand the bones of the picture: all (the default), none, or "
                         "a number of levels below the main bones."),
         QStringLiteral("levels")},
        {QStringLiteral("size"),
         CommandLine::tr("Make the picture <width>x<height> in size and fit the drawing in."),
         QStringLiteral("widthxheight")},
        {QStringLiteral("scale"),
         CommandLine::tr("Draw <factor> times as large as on the screen at 100 %."),
         QStringLiteral("factor")},
        {QStringLiteral("background"),
         CommandLine::tr("Fill the picture with <colour>, a name or #rrggbb, or leave it "
                         "transparent. White is the default."),
         QStringLiteral("colour")},
    };
    options += LookChoice::commandLineOptions();
    return options;
}

QCommandLineOption forFrom()
{
    return {QStringLiteral("from"),
            CommandLine::tr("Read the file as <format>, whatever its ending."),
            QStringLiteral("format")};
}

QCommandLineOption forTo()
{
    return {QStringLiteral("to"), CommandLine::tr("Write <format>, whatever the ending."),
            QStringLiteral("format")};
}

QCommandLineOption forStrict()
{
    return {QStringLiteral("strict"),
            CommandLine::tr("Write nothing when that would leave content out.")};
}

QCommandLineOption forJson()
{
    return {QStringLiteral("json"), CommandLine::tr("Say it as JSON, for programs.")};
}

} // namespace CommandOptions

namespace {

void describeWindow(QCommandLineParser &parser)
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
    parser.addOptions({helpOption(), versionOption(), languageOption(), translationsOption(),
                       CommandOptions::forExport()});
    parser.addOptions(CommandOptions::forPictures());
    parser.addPositionalArgument(QStringLiteral("documents"),
                                 CommandLine::tr("Diagrams to open: files, or http and https URLs. "
                                                 "Without one, a new diagram."),
                                 QStringLiteral("[document...]"));
}

void describeConvert(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        CommandLine::tr("Writes a diagram in another format, or as a picture.\n"
                        "The endings tell the formats. Read: %1.\n"
                        "Written: %2, and png, svg, pdf, html and pptx for pictures.\n"
                        "What is left out, or put where it can be kept, is listed on the error "
                        "output.")
            .arg(FormatNames::ids(DiagramExchange::canRead),
                 FormatNames::ids(DiagramExchange::canWrite)));
    parser.addOptions({helpOption(), languageOption(), CommandOptions::forFrom(),
                       CommandOptions::forTo(), CommandOptions::forStrict()});
    parser.addOptions(CommandOptions::forPictures());
    parser.addPositionalArgument(QStringLiteral("convert"), CommandLine::tr("The command."),
                                 QStringLiteral("convert"));
    parser.addPositionalArgument(QStringLiteral("in"), CommandLine::tr("The file to read."),
                                 QStringLiteral("in"));
    parser.addPositionalArgument(QStringLiteral("out"), CommandLine::tr("The file to write."),
                                 QStringLiteral("out"));
}

void describeInfo(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        CommandLine::tr("Counts what is in a diagram and lists what is off in it.\n"
                        "The exit code is 3 when anything is."));
    parser.addOptions(
        {helpOption(), languageOption(), CommandOptions::forFrom(), CommandOptions::forJson()});
    parser.addPositionalArgument(QStringLiteral("info"), CommandLine::tr("The command."),
                                 QStringLiteral("info"));
    parser.addPositionalArgument(QStringLiteral("file"), CommandLine::tr("The file to read."),
                                 QStringLiteral("file"));
}

void describeReport(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        CommandLine::tr("Writes what is sent round after a meeting: the picture, the causes in the "
                        "order of what was found out, what is to be done by whom, and a legend.\n"
                        "The ending .html, .pdf or .md tells the format; .md has its picture in a "
                        "file beside it."));
    parser.addOptions({helpOption(), languageOption(), CommandOptions::forFrom()});
    parser.addPositionalArgument(QStringLiteral("report"), CommandLine::tr("The command."),
                                 QStringLiteral("report"));
    parser.addPositionalArgument(QStringLiteral("file"), CommandLine::tr("The file to read."),
                                 QStringLiteral("file"));
    parser.addPositionalArgument(QStringLiteral("out"), CommandLine::tr("The file to write."),
                                 QStringLiteral("out"));
}

void describeCheck(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        CommandLine::tr("Names what is off in each file, and why one cannot be read, a line each.\n"
                        "The exit code is 1 when there is anything."));
    parser.addOptions({helpOption(), languageOption(), CommandOptions::forFrom()});
    parser.addPositionalArgument(QStringLiteral("check"), CommandLine::tr("The command."),
                                 QStringLiteral("check"));
    parser.addPositionalArgument(QStringLiteral("files"), CommandLine::tr("The files to look at."),
                                 QStringLiteral("file..."));
}

void describeMerge(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        CommandLine::tr("Merges what changed from the base to theirs into ours, subject by "
                        "subject, as git asks a merge driver to.\n"
                        "What both changed differently is kept as in ours, with a cause that says "
                        "so below it; the exit code is 1 then."));
    parser.addOptions({helpOption(), languageOption()});
    parser.addPositionalArgument(QStringLiteral("merge"), CommandLine::tr("The command."),
                                 QStringLiteral("merge"));
    parser.addPositionalArgument(QStringLiteral("base"),
                                 CommandLine::tr("The version that both come from."),
                                 QStringLiteral("base"));
    parser.addPositionalArgument(QStringLiteral("ours"),
                                 CommandLine::tr("The version to merge into; it is replaced."),
                                 QStringLiteral("ours"));
    parser.addPositionalArgument(QStringLiteral("theirs"), CommandLine::tr("The other version."),
                                 QStringLiteral("theirs"));
}

} // namespace

void CommandOptions::describe(QCommandLineParser &parser, CommandLine::Command command)
{
    switch (command) {
    case CommandLine::Command::None:
        return describeWindow(parser);
    case CommandLine::Command::Convert:
        return describeConvert(parser);
    case CommandLine::Command::Info:
        return describeInfo(parser);
    case CommandLine::Command::Report:
        return describeReport(parser);
    case CommandLine::Command::Check:
        return describeCheck(parser);
    case CommandLine::Command::Merge:
        return describeMerge(parser);
    }
}

void CommandOptions::describeAll(QCommandLineParser &parser)
{
    describeWindow(parser);
    parser.addOptions({forFrom(), forTo(), forStrict(), forJson()});
}

QString CommandOptions::expected(const QString &option, const QString &value, const QString &what)
{
    return CommandLine::tr("--%1 takes %2, not \"%3\"").arg(option, what, value);
}

QString CommandOptions::wrongTexts(const CommandLine &line)
{
    if (!line.language.isEmpty() && !Language::all().contains(line.language))
        return expected(QStringLiteral("language"), line.language,
                        Language::all().join(QLatin1String(", ")));
    if (!line.translations.isEmpty() && !QFileInfo(line.translations).isDir())
        return expected(QStringLiteral("translations"), line.translations,
                        CommandLine::tr("a folder"));
    return {};
}
