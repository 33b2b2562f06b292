// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandoptions.h>

#include <app/commandline/linecommand.h>
#include <app/commandline/lookchoice.h>
#include <app/common/language.h>

#include <QCommandLineParser>
#include <QFileInfo>

namespace CommandOptions {

QCommandLineOption forHelp()
{
    return {{QStringLiteral("h"), QStringLiteral("help")},
            CommandLine::tr("Show this help and quit.")};
}

QCommandLineOption forVersion()
{
    return {{QStringLiteral("v"), QStringLiteral("version")},
            CommandLine::tr("Show the version and quit.")};
}

QCommandLineOption forLanguage()
{
    return {QStringLiteral("language"),
            CommandLine::tr("Show texts in <language>, such as de or zh, instead of the system's."),
            QStringLiteral("language")};
}

QCommandLineOption forTranslations()
{
    return {QStringLiteral("translations"),
            CommandLine::tr("Show the texts that the files in <folder> have, and show them anew "
                            "when these are changed. For translators."),
            QStringLiteral("folder")};
}

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

void CommandOptions::describeAll(QCommandLineParser &parser)
{
    LineCommand::of(CommandLine::Command::None).describe(parser);
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
