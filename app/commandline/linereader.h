// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/commandline.h>

#include <QCommandLineOption>
#include <QList>

/**
 * Reads what the arguments of a command mean into a line. Each function is false when they make no
 * sense; the line says why then.
 */
class LineReader
{
public:
    /** Reads what @p parser has found into @p line. Both must outlive it. */
    LineReader(const QCommandLineParser &parser, CommandLine &line);

    CommandLine &line() const { return m_line; }
    bool isSet(const QCommandLineOption &option) const;
    QString valueOf(const QCommandLineOption &option) const;

    /** Says in the line that the arguments make no sense, for @p reason. Always false. */
    bool refuse(const QString &reason);
    /** Refuses each of @p refused that is set, for @p reason with its name in it. */
    bool refuseOptions(const QList<QCommandLineOption> &refused, const QString &reason);
    /** Refuses, for @p reason, what only other commands than that of the line take. */
    bool refuseOthers(const QString &reason);

    /** Reads the format of the document; one from the network is a diagram, whatever its address.
     */
    bool readSource();
    /** Reads the format that the option @p name or the ending of @p fileName tells. */
    bool readFormat(const QString &name, const QString &fileName,
                    std::optional<DiagramExchange::Format> &format);
    /** Whether the target is a picture or slide, by its ending. */
    bool writesPicture() const;
    /** Reads how a picture shall look. */
    bool readPicture();

private:
    Q_DISABLE_COPY(LineReader)

    template <typename Value>
    bool readOption(const QString &name, std::optional<Value> (*read)(const QString &),
                    const QString &what, Value &destination);

    const QCommandLineParser &m_parser;
    CommandLine &m_line;
};
