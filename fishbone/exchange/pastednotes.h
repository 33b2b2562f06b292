// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangereport.h>

#include <QString>

#include <memory>

class TreeItem;

/**
 * Reads what people copy: notes with dashes, numbers and headings, rows of a spreadsheet, and the
 * outlines that other programs put on the clipboard. Not a word is lost: what is no subject is in
 * the details of one.
 */
class FISHBONE_EXPORT PastedNotes
{
public:
    /** What a text can be taken for. */
    enum class Kind {
        Notes,    ///< a subject for each line, below the line that it is indented or listed under
        Markdown, ///< as Notes, with links and emphasis
        Table,    ///< a subject for each row; cells are separated by tabs
        Opml,     ///< an outline in XML
        FreeMind, ///< a mind map in XML
        Diagram,  ///< a diagram of Mermaid
    };

    /** What @p text most likely is. */
    static Kind kindOf(const QString &text);

    /** Whether @p text may well be something else than kindOf() says, so that somebody should look
     * at what becomes of it: rows without headings, lines that are listed here and indented there.
     */
    static bool isDoubtful(const QString &text);

    /**
     * Reads @p text as @p kind. The children of the node that is returned are the subjects at the
     * top level, one or several. Null on failure, and @p error says why, as DiagramExchange does.
     */
    static std::unique_ptr<TreeItem> read(const QString &text, Kind kind, QString *error = nullptr,
                                          ExchangeReport *report = nullptr);
};
