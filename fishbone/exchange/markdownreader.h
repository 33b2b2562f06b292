// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/markdownlinks.h>

#include <QHash>
#include <QString>
#include <QStringList>

class ImportedTree;
class TreeItem;

/** Builds a tree of the lines of a Markdown document: headings, lists, and what stands between. */
class MarkdownReader
{
public:
    MarkdownReader(const QString &text, ImportedTree &tree);

    /** Reads the whole document; false when the tree failed. */
    bool read();

private:
    /** A line of a paragraph of which nobody knows yet whether it is a heading. */
    struct Pending
    {
        QString text;
        qint64 line;
    };

    bool take();
    bool takeCode();
    bool isTaskListFence(const QString &text, int length);
    bool beginsCode();
    bool endCode();
    bool takeUnderline();
    bool takeHeading(int level);
    bool takeItem(int length);
    bool takeParagraph();
    bool flush();
    bool addSubject(int rank, const QString &markdown, qint64 line);
    void finishSubject();
    void takeIssue(TreeItem &subject);
    void addDetail(const QString &text);
    QString withoutComments(const QString &text, qint64 line);
    QString readDetail(const QString &markdown) const;

    ExchangeText::Lines m_lines;
    ImportedTree &m_tree;
    MarkdownLinks m_links;
    QString m_text;         ///< of the line, without comments
    QStringList m_title;    ///< the lines of the last subject's title
    qint64 m_titleLine = 0; ///< the first of them
    QStringList m_detail;   ///< the lines of the last subject's detail
    std::vector<Pending> m_pending;
    QString m_fence;             ///< what ends the block of code that has begun
    QString m_language;          ///< of that block
    QStringList m_code;          ///< its lines
    int m_codeIndentation = 0;   ///< of its first line
    int m_itemIndentation = -1;  ///< of the last list item; -1 below a heading
    int m_status = -1;           ///< of the last subject, from its box
    bool m_titleMayGoOn = false; ///< in the next line
    bool m_followsBlank = false;
    bool m_isInComment = false;
    bool m_isInTaskList = false;
};
