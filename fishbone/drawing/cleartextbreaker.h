// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/cleartext.h>

#include <memory>
#include <vector>

/**
 * Breaks one title into lines: between words, between the characters of Chinese, Japanese and
 * Korean text, there rather behind a comma, and inside a word only when it is wider than a line.
 */
class ClearTextBreaker
{
public:
    /** Breaks @p title in @p font; the widths of words are kept in @p widths. */
    ClearTextBreaker(const QString &title, const ClearFont &font, QHash<QString, qreal> &widths);

    /** The text in lines. */
    std::shared_ptr<const ClearText> broken(const ClearWrap &wrap);

private:
    /** A piece of text that is not broken. */
    struct Piece
    {
        int start;
        int end;       ///< without the spaces that follow
        qreal width;   ///< without them
        qreal space;   ///< their width
        bool endsLine; ///< a line break of the title follows
    };

    void collectPieces();
    void addPiece(int start, int end, int next, bool endsLine);
    void splitPieces(qreal limit);
    void splitPiece(const Piece &piece, qreal limit, std::vector<Piece> &out);
    qreal widthOf(int start, int end);

    int ownLines() const;
    int countLines(qreal width, int atMost, std::size_t first = 0) const;
    bool isPartedAfter(std::size_t piece) const;
    std::size_t betterLast(std::size_t first, std::size_t last, qreal width, int linesLeft) const;
    qreal narrowest(qreal widest, int lines) const;
    std::vector<ClearText::Line> linesWithin(qreal width, int atMost, bool &isCut);
    ClearText::Line lineOf(int start, int end) const;
    ClearText::Line cutLine(int start, int end, qreal width) const;

    QString m_title;
    const ClearFont &m_font;
    QHash<QString, qreal> &m_widths;
    std::vector<Piece> m_pieces;
};
