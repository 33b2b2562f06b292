// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline.h>

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
                            ".svg or .pdf tells the format. Needs no display."),
            QStringLiteral("file")};
}

/** The options that go with --export, in the order of the help text. */
QList<QCommandLineOption> pictureOptions()
{
    return {
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
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(CommandLine::tr("Edits fishbone diagrams of tasks."));
    parser.addOptions({helpOption(), versionOption(), languageOption(), exportOption()});
    parser.addOptions(pictureOptions());
    parser.addPositionalArgument(QStringLiteral("documents"),
                                 CommandLine::tr("Diagrams to open: files, or http and https URLs. "
                                                 "Without one, a new diagram."),
                                 QStringLiteral("[document...]"));
}

std::optional<int> levelsFrom(const QString &text)
{
    if (text == QLatin1String("all"))
        return CommandLine::allLevels;
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
    describe(parser);
    const bool wellFormed = parser.parse(arguments);
    line.language = parser.value(QStringLiteral("language"));
    line.documents = parser.positionalArguments();
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
        line.readExport(parser);
    }
    return line;
}

/** Reads the options of an export; false when they make no sense. */
bool CommandLine::readExport(const QCommandLineParser &parser)
{
    const bool exports = parser.isSet(QStringLiteral("export"));
    const QList<QCommandLineOption> all = pictureOptions();
    for (const QCommandLineOption &option : all) {
        if (!exports && parser.isSet(option))
            return refuse(tr("--%1 needs --export").arg(option.names().constFirst()));
    }
    if (!exports)
        return true;
    action = Action::Export;
    picture = parser.value(QStringLiteral("export"));
    if (!PictureExport::formatOf(picture))
        return refuse(tr("the format of \"%1\" is unknown: the name must end in .png, .svg or .pdf")
                          .arg(picture));
    if (documents.size() != 1)
        return refuse(tr("--export takes one document, not %1").arg(documents.size()));
    if (parser.isSet(QStringLiteral("size")) && parser.isSet(QStringLiteral("scale")))
        return refuse(tr("--size and --scale exclude each other"));
    return readOption(parser, QStringLiteral("expand"), levelsFrom,
                      tr("all, none or a number of levels"), levels) &&
           readOption(parser, QStringLiteral("size"), sizeFrom, tr("a size such as 1600x900"),
                      options.size) &&
           readOption(parser, QStringLiteral("scale"), scaleFrom, tr("a number above 0"),
                      options.scale) &&
           readOption(parser, QStringLiteral("background"), colorFrom,
                      tr("the name of a colour, #rrggbb or transparent"), options.background);
}

/** Reads the option @p name into @p target with @p read; false when that finds no value. */
template <typename Value>
bool CommandLine::readOption(const QCommandLineParser &parser, const QString &name,
                             std::optional<Value> (*read)(const QString &), const QString &what,
                             Value &target)
{
    if (!parser.isSet(name))
        return true;
    const std::optional<Value> value = read(parser.value(name));
    if (!value)
        return refuse(expected(name, parser.value(name), what));
    target = *value;
    return true;
}

QString CommandLine::helpText()
{
    QCommandLineParser parser;
    describe(parser);
    return parser.helpText();
}

QString CommandLine::versionText()
{
    return QStringLiteral("fishbone " FISHBONE_VERSION_STRING "\n");
}
