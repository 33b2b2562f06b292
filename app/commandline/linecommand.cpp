// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/linecommand.h>

#include <app/commandline/checkcommand.h>
#include <app/commandline/convertcommand.h>
#include <app/commandline/infocommand.h>
#include <app/commandline/mergecommand.h>
#include <app/commandline/reportcommand.h>
#include <app/commandline/windowcommand.h>

#include <QCommandLineParser>

#include <utility>

LineCommand::~LineCommand() = default;

const LineCommand &LineCommand::of(CommandLine::Command command)
{
    static const WindowCommand window{};
    static const ConvertCommand convert{};
    static const InfoCommand info{};
    static const ReportCommand report{};
    static const CheckCommand check{};
    static const MergeCommand merge{};
    switch (command) {
    case CommandLine::Command::Convert:
        return convert;
    case CommandLine::Command::Info:
        return info;
    case CommandLine::Command::Report:
        return report;
    case CommandLine::Command::Check:
        return check;
    case CommandLine::Command::Merge:
        return merge;
    case CommandLine::Command::None:
        break;
    }
    return window;
}

CommandLine::Command LineCommand::named(const QString &word)
{
    static const std::pair<const char *, CommandLine::Command> words[] = {
        {"convert", CommandLine::Command::Convert}, {"info", CommandLine::Command::Info},
        {"report", CommandLine::Command::Report},   {"check", CommandLine::Command::Check},
        {"merge", CommandLine::Command::Merge},
    };
    for (const auto &[name, command] : words) {
        if (word == QLatin1String(name))
            return command;
    }
    return CommandLine::Command::None;
}

void LineCommand::describeCommand(QCommandLineParser &parser, const char *word,
                                  const QString &description, const QList<Argument> &arguments)
{
    parser.setApplicationDescription(description);
    parser.addPositionalArgument(QLatin1String(word), CommandLine::tr("The command."),
                                 QLatin1String(word));
    for (const Argument &argument : arguments)
        parser.addPositionalArgument(
            QLatin1String(argument.name), argument.meaning,
            QLatin1String(argument.syntax ? argument.syntax : argument.name));
}
