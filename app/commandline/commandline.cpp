// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandline.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/optionvalues.h>
#include <app/common/formatnames.h>
#include <app/files/documentloader.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/version.h>

#include <QCommandLineParser>

#include <optional>

namespace {

/** Whether the ending of @p fileName is that of a picture or slide. */
bool isPicture(const QString &fileName)
{
    return DiagramPicture::canWrite(fileName) || SlideExport::isSlide(fileName);
}

CommandLine::Command commandFrom(const QString &text)
{
    if (text == QLatin1String("convert"))
        return CommandLine::Command::Convert;
    if (text == QLatin1String("info"))
        return CommandLine::Command::Info;
    if (text == QLatin1String("report"))
        return CommandLine::Command::Report;
    if (text == QLatin1String("check"))
        return CommandLine::Command::Check;
    if (text == QLatin1String("merge"))
        return CommandLine::Command::Merge;
    return CommandLine::Command::None;
}

} // namespace

bool CommandLine::refuse(const QString &reason)
{
    action = Action::Refuse;
    text = reason;
    return false;
}

CommandLine CommandLine::parse(const QStringList &arguments)
{
    CommandLine line;
    QCommandLineParser parser;
    // All options of all commands: only behind them it shows which command there is.
    CommandOptions::describeAll(parser);
    const bool wellFormed = parser.parse(arguments);
    line.language = parser.value(QStringLiteral("language"));
    line.translations = parser.value(QStringLiteral("translations"));
    line.documents = parser.positionalArguments();
    line.command = commandFrom(line.documents.value(0));
    if (line.command != Command::None)
        line.documents.removeFirst();
    if (parser.isSet(QStringLiteral("help"))) {
        line.action = Action::Print;
    } else if (parser.isSet(QStringLiteral("version"))) {
        line.action = Action::Print;
        line.text = versionText();
    } else if (!wellFormed) {
        line.refuse(parser.errorText());
    } else if (const QString wrong = CommandOptions::wrongTexts(line); !wrong.isEmpty()) {
        line.refuse(wrong);
    } else {
        line.readCommand(parser);
    }
    return line;
}

bool CommandLine::readCommand(const QCommandLineParser &parser)
{
    switch (command) {
    case Command::None:
        return refuseOptions(parser, {CommandOptions::forFrom()},
                             tr("--%1 needs convert, info, report or check")) &&
               refuseOptions(parser, {CommandOptions::forJson()}, tr("--%1 needs info")) &&
               refuseOptions(parser, {CommandOptions::forTo(), CommandOptions::forStrict()},
                             tr("--%1 needs convert")) &&
               readExport(parser);
    case Command::Convert:
        return readConvert(parser);
    case Command::Info:
        return readInfo(parser);
    case Command::Report:
        return readReport(parser);
    case Command::Check:
        return readCheck(parser);
    case Command::Merge:
        return readMerge(parser);
    }
    return false;
}

/** Reads the options of an export; false when they make no sense. */
bool CommandLine::readExport(const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("export")))
        return refuseOptions(parser, CommandOptions::forPictures(), tr("--%1 needs --export"));
    action = Action::Export;
    target = parser.value(QStringLiteral("export"));
    if (!isPicture(target))
        return refuse(
            tr("the format of \"%1\" is unknown: the name must end in .png, .svg, .pdf, .html or "
               ".pptx")
                .arg(target));
    if (documents.size() != 1)
        return refuse(tr("--export takes one document, not %1").arg(documents.size()));
    return readPicture(parser);
}

/** Reads the arguments of "convert"; false when they make no sense. */
bool CommandLine::readConvert(const QCommandLineParser &parser)
{
    action = Action::Convert;
    if (!refuseOptions(parser, {CommandOptions::forExport(), CommandOptions::forJson()},
                       tr("--%1 does not go with convert")))
        return false;
    if (documents.size() != 2)
        return refuse(tr("convert takes a file to read and a file to write"));
    target = documents.takeLast();
    isStrict = parser.isSet(CommandOptions::forStrict());
    if (!readSource(parser))
        return false;
    if (!parser.isSet(QStringLiteral("to")) && isPicture(target))
        return readPicture(parser);
    return refuseOptions(parser, CommandOptions::forPictures(),
                         tr("--%1 needs a picture to write")) &&
           readFormat(parser, QStringLiteral("to"), target, to);
}

/** Reads the arguments of "info"; false when they make no sense. */
bool CommandLine::readInfo(const QCommandLineParser &parser)
{
    action = Action::Info;
    if (!refuseOthers(parser, tr("--%1 does not go with info")))
        return false;
    isJson = parser.isSet(CommandOptions::forJson());
    if (documents.size() != 1)
        return refuse(tr("info takes one file, not %1").arg(documents.size()));
    return readSource(parser);
}

/** Reads the arguments of "report"; false when they make no sense. */
bool CommandLine::readReport(const QCommandLineParser &parser)
{
    action = Action::Report;
    if (!refuseOthers(parser, tr("--%1 does not go with report")))
        return false;
    if (documents.size() != 2)
        return refuse(tr("report takes a file to read and a file to write"));
    target = documents.takeLast();
    if (!MeetingReport::canWrite(target))
        return refuse(tr("the format of \"%1\" is unknown: the name must end in .html, .pdf or .md")
                          .arg(target));
    return readSource(parser);
}

/** Reads the arguments of "check"; false when they make no sense. */
bool CommandLine::readCheck(const QCommandLineParser &parser)
{
    action = Action::Check;
    if (!refuseOthers(parser, tr("--%1 does not go with check")))
        return false;
    if (documents.isEmpty())
        return refuse(tr("check takes the files to look at"));
    return !parser.isSet(CommandOptions::forFrom()) ||
           readFormat(parser, QStringLiteral("from"), QString(), from);
}

/** Reads the arguments of "merge"; false when they make no sense. */
bool CommandLine::readMerge(const QCommandLineParser &parser)
{
    action = Action::Merge;
    const QString reason = tr("--%1 does not go with merge");
    if (!refuseOthers(parser, reason) ||
        !refuseOptions(parser, {CommandOptions::forFrom()}, reason))
        return false;
    return documents.size() == 3 ||
           refuse(tr("merge takes the files of the base, of ours and of theirs"));
}

/** Refuses, for @p reason, what only other commands than this one take; true when none is set. */
bool CommandLine::refuseOthers(const QCommandLineParser &parser, const QString &reason)
{
    QList<QCommandLineOption> others = CommandOptions::forPictures();
    others += {CommandOptions::forExport(), CommandOptions::forTo(), CommandOptions::forStrict()};
    if (command != Command::Info)
        others += CommandOptions::forJson();
    return refuseOptions(parser, others, reason);
}

/** Reads the format of the document; one from the network is a diagram, whatever its address. */
bool CommandLine::readSource(const QCommandLineParser &parser)
{
    if (!DocumentLoader::isFromNetwork(documents.constFirst()))
        return readFormat(parser, QStringLiteral("from"), documents.constFirst(), from);
    from = DiagramExchange::Format::Json;
    return refuseOptions(parser, {CommandOptions::forFrom()},
                         tr("--%1 does not go with a document from the network"));
}

/** Reads the format that the option @p name or the ending of @p fileName tells. */
bool CommandLine::readFormat(const QCommandLineParser &parser, const QString &name,
                             const QString &fileName,
                             std::optional<DiagramExchange::Format> &format)
{
    const bool reads = name == QLatin1String("from");
    const auto can = reads ? DiagramExchange::canRead : DiagramExchange::canWrite;
    const bool isSet = parser.isSet(name);
    const QString value = parser.value(name);
    format = isSet ? DiagramExchange::formatById(value) : DiagramExchange::formatOf(fileName);
    if (format && can(*format))
        return true;
    if (format && reads)
        return refuse(tr("%1 can only be written").arg(DiagramExchange::name(*format)));
    if (format)
        return refuse(tr("%1 can only be read").arg(DiagramExchange::name(*format)));
    if (isSet)
        return refuse(
            CommandOptions::expected(name, value, tr("one of %1").arg(FormatNames::ids(can))));
    if (reads)
        return refuse(tr("the format of \"%1\" is unknown: the name must end in one of %2, or "
                         "--from tell one of %3")
                          .arg(fileName, FormatNames::endings(can), FormatNames::ids(can)));
    return refuse(tr("the format of \"%1\" is unknown: the name must end in one of %2, or in "
                     ".png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3")
                      .arg(fileName, FormatNames::endings(can), FormatNames::ids(can)));
}

/** Reads how a picture shall look. */
bool CommandLine::readPicture(const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("size")) && parser.isSet(QStringLiteral("scale")))
        return refuse(tr("--size and --scale exclude each other"));
    if (const QString reason = look.read(parser); !reason.isEmpty())
        return refuse(reason);
    if (look.view.look != DiagramLook::Clear && !PictureExport::formatOf(target) &&
        !SlideExport::isSlide(target))
        return refuse(tr("a page for the browser needs the clear look"));
    return readOption(parser, QStringLiteral("expand"), OptionValues::levelsFrom,
                      tr("all, none or a number of levels"), levels) &&
           readOption(parser, QStringLiteral("size"), OptionValues::sizeFrom,
                      tr("a size such as 1600x900"), options.size) &&
           readOption(parser, QStringLiteral("scale"), OptionValues::scaleFrom,
                      tr("a number above 0"), options.scale) &&
           readOption(parser, QStringLiteral("background"), OptionValues::colorFrom,
                      tr("the name of a colour, #rrggbb or transparent"), options.background);
}

/** Refuses each of @p refused that is set, for @p reason with its name in it; true when none is. */
bool CommandLine::refuseOptions(const QCommandLineParser &parser,
                                const QList<QCommandLineOption> &refused, const QString &reason)
{
    for (const QCommandLineOption &option : refused) {
        if (parser.isSet(option))
            return refuse(reason.arg(option.names().constFirst()));
    }
    return true;
}

/** Reads the option @p name into @p target with @p read; false when that finds no value. */
template <typename Value>
bool CommandLine::readOption(const QCommandLineParser &parser, const QString &name,
                             std::optional<Value> (*read)(const QString &), const QString &what,
                             Value &destination)
{
    if (!parser.isSet(name))
        return true;
    const std::optional<Value> value = read(parser.value(name));
    if (!value)
        return refuse(CommandOptions::expected(name, parser.value(name), what));
    destination = *value;
    return true;
}

QString CommandLine::helpText(Command command)
{
    QCommandLineParser parser;
    CommandOptions::describe(parser, command);
    return parser.helpText();
}

QString CommandLine::versionText()
{
    return QStringLiteral("fishbone " FISHBONE_VERSION_STRING "\n");
}
