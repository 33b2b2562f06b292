// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangetext.h>

#include <QHash>
#include <QString>
#include <QStringList>

class ImportedTree;
class TreeItem;

/** Reads outlines of Emacs's org-mode. */
class OrgReader
{
public:
    OrgReader(const QString &text, ImportedTree &tree)
        : m_lines(text)
        , m_tree(tree)
    {
    }

    /** Reads the whole outline; false when the tree failed. */
    bool read();

private:
    bool takeHeading(const QString &line, int level);
    void takePriority(QString &title);
    void takeTags(QString &title);
    void takeCookie(QString &title);
    void takeLinks(QString &title);
    bool takeKeyword(const QString &line);
    bool takeDrawer(const QString &line);
    void takeProperty(const QString &name, const QString &value);
    bool takePlanning(const QString &line);
    bool takeListItem(const QString &line);
    void finishSubject();

    ExchangeText::Lines m_lines;
    ImportedTree &m_tree;
    TreeItem *m_subject = nullptr;
    QStringList m_detail;
    QStringList m_front;            ///< what stands above all headings
    QHash<QString, int> m_declared; ///< words for statuses
    QString m_drawer;               ///< that is open
    QString m_title;                ///< of the file
    bool m_hasPlannedEnd = false;   ///< the exact one
    bool m_isList = false;          ///< an outline without headings
    bool m_isInBlock = false;
};
