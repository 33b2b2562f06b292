// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangetext.h>

#include <QString>
#include <QStringList>

#include <optional>

class ImportedTree;

/** Reads the trees among the diagrams of Mermaid: the ishikawa diagram and the mind map. */
class MermaidReader
{
public:
    MermaidReader(const QString &text, ImportedTree &tree);

    /** Whether @p text is one of these diagrams. */
    static bool isTree(const QString &text);

    /**
     * Reads the diagram; false when the tree failed. The head ranks as @p headRank, what is below
     * it deeper. @p linesBefore is how many lines of a document stand above the text.
     */
    bool read(int headRank, qint64 linesBefore);

private:
    bool nextLine();
    bool skipSettings();
    void keepSettings();
    bool readIshikawa(int headRank);
    bool readMindMap(int headRank);
    bool addMindNode(int headRank);
    bool takeDecoration(const QString &line);
    QString nodeText(const QString &line);

    qint64 line() const { return m_linesBefore + m_lines.number(); }

    ExchangeText::Lines m_lines;
    ImportedTree &m_tree;
    qint64 m_linesBefore = 0;
    QStringList m_settings;
};
