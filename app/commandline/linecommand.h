// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/commandline.h>

class LineReader;
class QCommandLineParser;

/** One of the commands of the program: what its help says, and what its arguments mean. */
class LineCommand
{
public:
    LineCommand() = default;
    virtual ~LineCommand();

    /** That of @p command, which lives as long as the process. */
    static const LineCommand &of(CommandLine::Command command);
    /** The command that the word @p word stands for; None when it stands for none. */
    static CommandLine::Command named(const QString &word);

    /** Gives @p parser the options, arguments and description of the command. */
    virtual void describe(QCommandLineParser &parser) const = 0;
    /** Reads the arguments; false when they make no sense. */
    virtual bool read(LineReader &reader) const = 0;

protected:
    /** An argument, and what the help says of it. */
    struct Argument
    {
        const char *name;
        QString meaning;
        const char *syntax = nullptr; ///< the name when there is none
    };

    /** Gives @p parser the description and the arguments of the command @p word. */
    static void describeCommand(QCommandLineParser &parser, const char *word,
                                const QString &description, const QList<Argument> &arguments);

private:
    Q_DISABLE_COPY(LineCommand)
};
