// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/tasktable.h>

#include <QByteArray>

#include <vector>

class ImportedTree;
class TreeItem;

/**
 * A format of DiagramExchange: all that the rest of the program knows of it.
 *
 * Each has a source of its own that defines one of these; to add a format, write that source and
 * add it to ExchangeFormats::all().
 */
struct ExchangeFormat
{
    DiagramExchange::Format format;
    const char *id;
    const char *name;    ///< for DiagramExchange::tr()
    const char *endings; ///< separated by blanks, the usual one first
    /** The keys of the diagram format whose values come back after writing and reading; "*" stands
     * for all attributes that formats exchange. */
    const char *kept;
    /** Adds what the bytes hold to a tree, which knows the reason when it did not work. Null for a
     * format that is only written. */
    bool (*read)(const QByteArray &bytes, ImportedTree &tree);
    /** The bytes of a tree of a bounded depth. Null for a format that is only read. */
    QByteArray (*write)(const TreeItem &head);
    /** Reads the rows of a table; null for a format that is none. */
    bool (*readRows)(const QByteArray &bytes, ImportedTree &tree,
                     std::vector<TaskTable::Row> &rows) = nullptr;
    /** Whether the value of the field @p key comes back; null where kept says that for all values.
     */
    bool (*keeps)(const TreeItem &subject, QLatin1String key) = nullptr;
    /** Whether the fields of subjects that this program does not know come back, too. */
    bool keepsOtherFields = false;
};

namespace ExchangeFormats {

extern const ExchangeFormat json;
extern const ExchangeFormat markdown;
extern const ExchangeFormat text;
extern const ExchangeFormat opml;
extern const ExchangeFormat freeMind;
extern const ExchangeFormat mermaid;
extern const ExchangeFormat csv;
extern const ExchangeFormat xmind;
extern const ExchangeFormat xlsx;
extern const ExchangeFormat org;
extern const ExchangeFormat drawIo;
extern const ExchangeFormat plantUml;

/** All formats, in the order of DiagramExchange::Format. */
const std::vector<const ExchangeFormat *> &all();

/** What is known of @p format. */
const ExchangeFormat &of(DiagramExchange::Format format);

} // namespace ExchangeFormats
