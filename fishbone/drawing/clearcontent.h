// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearpicture.h>

#include <QCoreApplication>

#include <functional>
#include <map>
#include <optional>
#include <set>

class TreeItem;

/** Collects what the legend of a drawing explains, each once. */
class ClearSymbols
{
public:
    /** Takes what is drawn of @p subject, which is at @p level and looks like @p look. */
    void add(const TreeItem &subject, const ClearSubjectLook &look, int level);
    /** Statuses, verdicts, votes and colours. */
    std::vector<ClearMeaning> all() const;

private:
    static int statusOf(const QString &icon, int status);

    std::map<int, QString> m_statuses; ///< with the first icon of each
    std::set<int> m_verdicts;
    bool m_hasVotes = false;
    std::map<QRgb, QString> m_colours; ///< with the first subject of each
};

/** Takes out of a diagram what a picture of it shows. */
class ClearContent
{
    Q_DECLARE_TR_FUNCTIONS(ClearContent)

public:
    /** The diagram below @p head, which must not be null: @p levels levels below the categories,
     * all of them when that is negative; subjects above what is left out say how much that is. The
     * legend has the statuses that occur. Linear, without recursion. */
    static ClearPictureContent of(const TreeItem *head, int levels = -1);

    /** Whether what is below a subject on that level is shown; the head is on level 0. */
    using Shows = std::function<bool(const TreeItem &subject, int level)>;
    /** The same with what is below those subjects that @p shows tells; always what is below the
     * head. */
    static ClearPictureContent of(const TreeItem *head, const Shows &shows);

    /** What the status @p status means, translated; empty for one without an icon. */
    static QString meaningOf(int status);
    /** What @p verdict means, translated; empty for none. */
    static QString meaningOf(Verdict verdict);
    /** That a subject has @p votes, translated; empty for none. */
    static QString textOfVotes(int votes);

    /** What a picture says of @p item, which is at @p level and belongs to subject @p parent of the
     * picture; nothing of null. */
    static PictureSubject about(const TreeItem *item, int parent, int level);
    /** The font that @p subject has of its own. */
    static std::optional<ClearFont> ownFont(const TreeItem &subject);

private:
    static QString shownIn(const TreeItem &subject);
    static void add(const TreeItem *item, int parent, ClearPictureContent &content);
};
