// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class ExchangeReport;
class QIODevice;
class TreeItem;
struct TableMapping;

/**
 * Reads and writes diagrams in the formats of other programs, and in the diagram format itself.
 *
 * What a format cannot carry is left out when writing, and lossesOf() names it; docs/formats.md of
 * the sources says what each of them keeps. What a file brings and a subject has no field for goes
 * into its details, or is left out; an ExchangeReport says which. Text is written as UTF-8 and read
 * as UTF-8 or as what its byte order mark says; a text in another code page is told from its bytes,
 * which the report says too. A line may end in any of the usual ways.
 *
 * A tree that was read from a foreign format is ready to be edited: every subject has a uuid of its
 * own, and its pid names its parent. Several subjects at the top level become the main bones of a
 * new head. The diagram format is read as it stands.
 *
 * Readers take input from anywhere. They bound its size, the number of subjects and the depth, and
 * expand no entities of XML; what is wrong is refused with the line where it stands, not repaired
 * silently.
 */
class FISHBONE_EXPORT DiagramExchange
{
    Q_DECLARE_TR_FUNCTIONS(DiagramExchange)

public:
    /** A format that diagrams are kept in. */
    enum class Format {
        Json,     ///< the diagram format itself
        Markdown, ///< a heading and nested lists
        Text,     ///< a line for each subject, indented by tabs
        Opml,     ///< the format of outliners, version 2.0
        FreeMind, ///< the mind maps of FreeMind and Freeplane
        Mermaid,  ///< the text of Mermaid's ishikawa diagram
        Csv,      ///< a table of tasks (RFC 4180)
        Xmind,    ///< the maps of XMind, of both generations
        Xlsx,     ///< a workbook of Excel: a table of tasks
        Org,      ///< the outlines of Emacs's org-mode
        DrawIo,   ///< the drawings of draw.io; only written
        PlantUml, ///< the mind maps of PlantUML; only read
    };

    /** The levels that a diagram may have, which is what fits into the diagram format. */
    static constexpr int maximalLevels = 512;
    /** The subjects that a reader takes. */
    static constexpr int maximalSubjects = 500000;
    /** The bytes that a reader takes. */
    static constexpr qint64 maximalBytes = Q_INT64_C(256) << 20;

    /** All formats, the diagram format first. */
    static QList<Format> formats();
    /** The short name of a format that a command line takes, "md" for instance. */
    static QString id(Format format);
    /** Whether diagrams of that format can be read; some are only written. */
    static bool canRead(Format format);
    /** Whether diagrams can be written in that format; some are only read. */
    static bool canWrite(Format format);
    /** The keys of the diagram format whose values come back after writing and reading. A new list,
     * linear in the number of keys. */
    static QStringList keptKeys(Format format);
    /** The name of a format for the user, translated. */
    static QString name(Format format);
    /** The endings of file names that tell the format, without a dot; the usual one first. */
    static QStringList suffixes(Format format);
    /** The format that id() gives @p id for, in any case; nothing for an unknown one. */
    static std::optional<Format> formatById(const QString &id);
    /** The format that the ending of @p fileName tells, in any case; nothing for an unknown one. */
    static std::optional<Format> formatOf(const QString &fileName);

    /**
     * The name filters of a file dialog that picks a foreign file to read: one that fits all
     * formats, then one for each of them that can be read.
     */
    static QString importFilter();
    /** The name filters of a file dialog that picks a foreign file to write, one for each format
     * that can be written. */
    static QString exportFilter();

    /**
     * Reads a whole diagram from @p device, which is open for reading. Returns its head, which has
     * no parent; null on failure, and @p error says why: for the user, translated, a clause without
     * a full stop. @p report says what became of the things that no field holds.
     */
    static std::unique_ptr<TreeItem> read(QIODevice &device, Format format,
                                          QString *error = nullptr,
                                          ExchangeReport *report = nullptr);
    /**
     * As read(), for what goes below a subject of another diagram: the children of the node that is
     * returned are the subjects at the top level, one or several.
     */
    static std::unique_ptr<TreeItem> readBranches(QIODevice &device, Format format,
                                                  QString *error = nullptr,
                                                  ExchangeReport *report = nullptr);
    /** As read(), from the file @p fileName. The columns of a table stand for what @p mapping says,
     * where there is one. */
    static std::unique_ptr<TreeItem> readFile(const QString &fileName, Format format,
                                              QString *error = nullptr,
                                              ExchangeReport *report = nullptr,
                                              const TableMapping *mapping = nullptr);

    /** What the columns of the table in the file @p fileName stand for; nothing, with an error,
     * when it cannot be read, and nothing without one when @p format has no columns. */
    static std::optional<TableMapping> tableMapping(const QString &fileName, Format format,
                                                    QString *error = nullptr);

    /** What of @p head and everything below it is left out when it is written in @p format. Linear
     * in the number of subjects. */
    static ExchangeReport lossesOf(const TreeItem &head, Format format);
    /** What a slide (SlideExport) of the diagram below @p head does not hold. @p showsMarks says
     * whether its look draws verdicts, votes and colours, as the clear one does. */
    static ExchangeReport lossesOfSlide(const TreeItem &head, bool showsMarks);

    /**
     * Writes @p head with everything below it to @p device, which is open for writing. False on
     * failure, and @p error says why, as for read(). A diagram of too many levels is refused, since
     * nobody could read it back.
     */
    static bool write(QIODevice &device, const TreeItem &head, Format format,
                      QString *error = nullptr);
    /**
     * As write(), into the file @p fileName, which is replaced whole or not at all; in a folder
     * that is not writable it is written in place.
     */
    static bool writeFile(const QString &fileName, const TreeItem &head, Format format,
                          QString *error = nullptr);
};
