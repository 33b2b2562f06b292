// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

/** What the arguments of the program ask for. */
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /** The program's exit codes. */
    enum ExitCode : int {
        success = 0,
        failure = 1,  ///< something could not be read, drawn or written
        badUsage = 2, ///< the arguments make no sense
    };

    enum class Action {
        ShowWindow, ///< open the documents in a window
        Export,     ///< draw the one document into a picture file
        Print,      ///< print the text to the standard output: help or version
        Refuse,     ///< print the text to the error output: the arguments make no sense
    };

    /** Every level of bones; the alternative to a number of levels. */
    static constexpr int allLevels = -1;

    /** Reads the arguments, the program's name in front. Works without an application object. */
    static CommandLine parse(const QStringList &arguments);

    /** The help text, which names the options. Needs an application object. */
    static QString helpText();
    /** The name of the program and its version. */
    static QString versionText();

    Action action = Action::ShowWindow;
    QString text;           ///< for Refuse: what is wrong; for Print: empty for the help text
    QString language;       ///< "zh", "en" or, to go by the locale, empty
    QStringList documents;  ///< files and URLs
    QString picture;        ///< the file to write
    int levels = allLevels; ///< how many levels of bones below the main bones to expand
    PictureOptions options;

private:
    bool readExport(const QCommandLineParser &parser);
    template <typename Value>
    bool readOption(const QCommandLineParser &parser, const QString &name,
                    std::optional<Value> (*read)(const QString &), const QString &what,
                    Value &target);
    bool refuse(const QString &reason);
};
