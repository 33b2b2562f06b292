// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandline.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/linecommand.h>
#include <app/commandline/linereader.h>

#include <fishbone/version.h>

#include <QCommandLineParser>

CommandLine CommandLine::parse(const QStringList &arguments)
{
    CommandLine line;
    QCommandLineParser parser;
    // All options of all commands: only behind them it shows which command there is.
    CommandOptions::describeAll(parser);
    LineReader reader(parser, line);
    const bool wellFormed = parser.parse(arguments);
    line.language = parser.value(QStringLiteral("language"));
    line.translations = parser.value(QStringLiteral("translations"));
    line.documents = parser.positionalArguments();
    line.command = LineCommand::named(line.documents.value(0));
    if (line.command != Command::None)
        line.documents.removeFirst();
    if (parser.isSet(QStringLiteral("help"))) {
        line.action = Action::Print;
    } else if (parser.isSet(QStringLiteral("version"))) {
        line.action = Action::Print;
        line.text = versionText();
    } else if (!wellFormed) {
        reader.refuse(parser.errorText());
    } else if (const QString wrong = CommandOptions::wrongTexts(line); !wrong.isEmpty()) {
        reader.refuse(wrong);
    } else {
        LineCommand::of(line.command).read(reader);
    }
    return line;
}

QString CommandLine::helpText(Command command)
{
    QCommandLineParser parser;
    LineCommand::of(command).describe(parser);
    return parser.helpText();
}

QString CommandLine::versionText()
{
    return QStringLiteral("fishbone " FISHBONE_VERSION_STRING "\n");
}
