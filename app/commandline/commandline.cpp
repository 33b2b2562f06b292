// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandline.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/version.h>

#include <QCommandLineParser>
#include <QRegularExpression>

#include <cmath>
#include <optional>

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
            CommandLine::tr("Show texts in <language>, zh or en, instead of the system's."),
            QStringLiteral("language")};
}

QCommandLineOption exportOption()
{
    return {QStringLiteral("export"),
            CommandLine::tr("Draw the diagram into the picture <file> and quit. The ending .png, "
                            ".svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no "
                            "display."),
            QStringLiteral("file")};
}

/** The options that go with --export, in the order of the help text. */
QList<QCommandLineOption> pictureOptions()
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

QCommandLineOption fromOption()
{
    return {QStringLiteral("from"),
            CommandLine::tr("Read the file as <format>, whatever its ending."),
            QStringLiteral("format")};
}

QCommandLineOption toOption()
{
    return {QStringLiteral("to"), CommandLine::tr("Write <format>, whatever the ending."),
            QStringLiteral("format")};
}

QCommandLineOption strictOption()
{
    return {QStringLiteral("strict"),
            CommandLine::tr("Write nothing when that would leave content out.")};
}

/** The names of the formats that @p can says yes to, "json, md, …". */
QString formatIds(bool (*can)(DiagramExchange::Format))
{
    QStringList ids;
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        if (can(format))
            ids.append(DiagramExchange::id(format));
    }
    return ids.join(QLatin1String(", "));
}

/** The endings that tell the formats that @p can says yes to, ".json, .md, …". */
QString endings(bool (*can)(DiagramExchange::Format))
{
    QStringList endings;
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        const QStringList suffixes =
            can(format) ? DiagramExchange::suffixes(format) : QStringList();
        for (const QString &suffix : suffixes)
            endings.append(QLatin1Char('.') + suffix);
    }
    return endings.join(QLatin1String(", "));
}

/** Whether the ending of @p fileName is that of a picture or slide. */
bool isPicture(const QString &fileName)
{
    return DiagramPicture::canWrite(fileName) || SlideExport::isSlide(fileName);
}

void describeWindow(QCommandLineParser &parser)
{
    parser.setApplicationDescription(CommandLine::tr(
        "Edits fishbone diagrams of tasks.\n\n"
        "Three commands need no display:\n"
        "  convert   write a diagram in another format, or as a picture\n"
        "  info      say what is in a diagram, and what is off in it\n"
        "  report    write what is sent round after a meeting\n"
        "\"fishbone convert --help\" tells more. A file of such a name is ./convert."));
    parser.addOptions({helpOption(), versionOption(), languageOption(), exportOption()});
    parser.addOptions(pictureOptions());
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
                        "Written: %2, and png, svg, pdf and pptx for pictures.\n"
                        "What is left out, or put where it can be kept, is listed on the error "
                        "output.")
            .arg(formatIds(DiagramExchange::canRead), formatIds(DiagramExchange::canWrite)));
    parser.addOptions({helpOption(), languageOption(), fromOption(), toOption(), strictOption()});
    parser.addOptions(pictureOptions());
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
    parser.addOptions({helpOption(), languageOption(), fromOption()});
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
    parser.addOptions({helpOption(), languageOption(), fromOption()});
    parser.addPositionalArgument(QStringLiteral("report"), CommandLine::tr("The command."),
                                 QStringLiteral("report"));
    parser.addPositionalArgument(QStringLiteral("file"), CommandLine::tr("The file to read."),
                                 QStringLiteral("file"));
    parser.addPositionalArgument(QStringLiteral("out"), CommandLine::tr("The file to write."),
                                 QStringLiteral("out"));
}

void describe(QCommandLineParser &parser, CommandLine::Command command)
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
    }
}

CommandLine::Command commandFrom(const QString &text)
{
    if (text == QLatin1String("convert"))
        return CommandLine::Command::Convert;
    if (text == QLatin1String("info"))
        return CommandLine::Command::Info;
    if (text == QLatin1String("report"))
        return CommandLine::Command::Report;
    return CommandLine::Command::None;
}

std::optional<int> levelsFrom(const QString &text)
{
    if (text == QLatin1String("all"))
        return Expansion::allLevels;
    if (text == QLatin1String("none"))
        return 0;
    bool isNumber = false;
    const int levels = text.toInt(&isNumber);
    return isNumber && levels >= 0 ? std::make_optional(levels) : std::nullopt;
}

std::optional<QSize> sizeFrom(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,6})x([0-9]{1,6})$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    return size.isEmpty() ? std::nullopt : std::make_optional(size);
}

std::optional<double> scaleFrom(const QString &text)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    return isNumber && std::isfinite(scale) && scale > 0 ? std::make_optional(scale) : std::nullopt;
}

std::optional<QColor> colorFrom(const QString &text)
{
    // Asked first because the conversion complains about a name that it does not know.
    return QColor::isValidColor(text) ? std::make_optional(QColor(text)) : std::nullopt;
}

QString expected(const QString &option, const QString &value, const QString &what)
{
    return CommandLine::tr("--%1 takes %2, not \"%3\"").arg(option, what, value);
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
    describeWindow(parser);
    parser.addOptions({fromOption(), toOption(), strictOption()});
    const bool wellFormed = parser.parse(arguments);
    line.language = parser.value(QStringLiteral("language"));
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
    } else if (!line.language.isEmpty() && line.language != QLatin1String("zh") &&
               line.language != QLatin1String("en")) {
        line.refuse(expected(QStringLiteral("language"), line.language, tr("zh or en")));
    } else {
        line.readCommand(parser);
    }
    return line;
}

bool CommandLine::readCommand(const QCommandLineParser &parser)
{
    switch (command) {
    case Command::None:
        return refuseOptions(parser, {fromOption(), toOption()},
                             tr("--%1 needs convert, info or report")) &&
               refuseOptions(parser, {strictOption()}, tr("--%1 needs convert")) &&
               readExport(parser);
    case Command::Convert:
        return readConvert(parser);
    case Command::Info:
        return readInfo(parser);
    case Command::Report:
        return readReport(parser);
    }
    return false;
}

/** Reads the options of an export; false when they make no sense. */
bool CommandLine::readExport(const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("export")))
        return refuseOptions(parser, pictureOptions(), tr("--%1 needs --export"));
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
    if (!refuseOptions(parser, {exportOption()}, tr("--%1 does not go with convert")))
        return false;
    if (documents.size() != 2)
        return refuse(tr("convert takes a file to read and a file to write"));
    target = documents.takeLast();
    isStrict = parser.isSet(strictOption());
    if (!readFormat(parser, QStringLiteral("from"), documents.constFirst(), from))
        return false;
    if (!parser.isSet(QStringLiteral("to")) && isPicture(target))
        return readPicture(parser);
    return refuseOptions(parser, pictureOptions(), tr("--%1 needs a picture to write")) &&
           readFormat(parser, QStringLiteral("to"), target, to);
}

/** Reads the arguments of "info"; false when they make no sense. */
bool CommandLine::readInfo(const QCommandLineParser &parser)
{
    action = Action::Info;
    if (!refuseAllBut(parser, tr("--%1 does not go with info")))
        return false;
    if (documents.size() != 1)
        return refuse(tr("info takes one file, not %1").arg(documents.size()));
    return readFormat(parser, QStringLiteral("from"), documents.constFirst(), from);
}

/** Reads the arguments of "report"; false when they make no sense. */
bool CommandLine::readReport(const QCommandLineParser &parser)
{
    action = Action::Report;
    if (!refuseAllBut(parser, tr("--%1 does not go with report")))
        return false;
    if (documents.size() != 2)
        return refuse(tr("report takes a file to read and a file to write"));
    target = documents.takeLast();
    if (!MeetingReport::canWrite(target))
        return refuse(tr("the format of \"%1\" is unknown: the name must end in .html, .pdf or .md")
                          .arg(target));
    return readFormat(parser, QStringLiteral("from"), documents.constFirst(), from);
}

/** Refuses all options but the format to read, for @p reason; true when there are no others. */
bool CommandLine::refuseAllBut(const QCommandLineParser &parser, const QString &reason)
{
    QList<QCommandLineOption> others = pictureOptions();
    others += {exportOption(), toOption(), strictOption()};
    return refuseOptions(parser, others, reason);
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
        return refuse(expected(name, value, tr("one of %1").arg(formatIds(can))));
    if (reads)
        return refuse(tr("the format of \"%1\" is unknown: the name must end in one of %2, or "
                         "--from tell one of %3")
                          .arg(fileName, endings(can), formatIds(can)));
    return refuse(tr("the format of \"%1\" is unknown: the name must end in one of %2, or in "
                     ".png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3")
                      .arg(fileName, endings(can), formatIds(can)));
}

/** Reads how a picture shall look. */
bool CommandLine::readPicture(const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("size")) && parser.isSet(QStringLiteral("scale")))
        return refuse(tr("--size and --scale exclude each other"));
    if (const QString reason = look.read(parser); !reason.isEmpty())
        return refuse(reason);
    if (look.view.look == DiagramLook::Classic && !PictureExport::formatOf(target) &&
        !SlideExport::isSlide(target))
        return refuse(tr("a page for the browser needs the clear look"));
    return readOption(parser, QStringLiteral("expand"), levelsFrom,
                      tr("all, none or a number of levels"), levels) &&
           readOption(parser, QStringLiteral("size"), sizeFrom, tr("a size such as 1600x900"),
                      options.size) &&
           readOption(parser, QStringLiteral("scale"), scaleFrom, tr("a number above 0"),
                      options.scale) &&
           readOption(parser, QStringLiteral("background"), colorFrom,
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
        return refuse(expected(name, parser.value(name), what));
    destination = *value;
    return true;
}

QString CommandLine::helpText(Command command)
{
    QCommandLineParser parser;
    describe(parser, command);
    return parser.helpText();
}

QString CommandLine::versionText()
{
    return QStringLiteral("fishbone " FISHBONE_VERSION_STRING "\n");
}
