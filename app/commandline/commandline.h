// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/lookchoice.h>
#include <app/diagram/expansion.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/pictureexport.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

/** What the arguments of the program ask for. */
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /** The program's exit codes. */
    enum ExitCode : int {
        success = 0,
        failure = 1,  ///< something could not be read, drawn, written, or merged without conflicts
        badUsage = 2, ///< the arguments make no sense
        isOff = 3,    ///< something is off in the document that was asked about
    };

    /** The word that may stand before the other arguments. */
    enum class Command {
        None,
        Convert, ///< "convert": from one format to another
        Info,    ///< "info": about a document
        Report,  ///< "report": what is sent round after a meeting
        Check,   ///< "check": what is off in files
        Merge,   ///< "merge": two versions of a diagram that have one origin
    };

    enum class Action {
        ShowWindow, ///< open the documents in a window
        Export,     ///< draw the one document into a picture file
        Convert,    ///< write the one document in another format, or as a picture
        Info,       ///< say what is in the one document, and what is off in it
        Report,     ///< write a report of the one document
        Check,      ///< name what is off in the documents
        Merge,      ///< merge the third document into the second one, the first being their origin
        Print,      ///< print the text to the standard output: help or version
        Refuse,     ///< print the text to the error output: the arguments make no sense
    };

    /** Reads the arguments, the program's name in front. Works without an application object. */
    static CommandLine parse(const QStringList &arguments);

    /** The help text, which names the options. Needs an application object. */
    static QString helpText(Command command);
    /** The name of the program and its version. */
    static QString versionText();

    Action action = Action::ShowWindow;
    Command command = Command::None;
    QString text;          ///< for Refuse: what is wrong; for Print: empty for the help text
    QString language;      ///< one that there is or, to go by the locale, empty
    QString translations;  ///< a folder of texts to show instead of the own ones, or empty
    QStringList documents; ///< files and URLs
    QString target;        ///< the file to write
    std::optional<DiagramExchange::Format> from; ///< of the document
    std::optional<DiagramExchange::Format> to;   ///< of the target; nothing for a picture
    bool isStrict = false;             ///< a conversion that would leave something out is refused
    bool isJson = false;               ///< what is said is for programs
    int levels = Expansion::allLevels; ///< how many levels of bones below the main bones to expand
    PictureOptions options;
    LookChoice look; ///< of a picture
};
