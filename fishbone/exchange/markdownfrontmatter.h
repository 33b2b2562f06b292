// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangetext.h>

#include <QStringList>

class ImportedTree;

/** The names and values between two lines of dashes at the very beginning of a document. */
class MarkdownFrontMatter
{
public:
    /** Looks for front matter in @p lines, of which none is read yet. */
    explicit MarkdownFrontMatter(ExchangeText::Lines lines);

    /** The number of the first line behind it; 0 when there is none. */
    qint64 firstLine() const { return m_firstLine; }
    /** Puts it into the details of the head of @p tree, but for the title, which is the head's. */
    void keep(ImportedTree &tree) const;

private:
    QStringList m_entries;
    qint64 m_firstLine = 0;
};
