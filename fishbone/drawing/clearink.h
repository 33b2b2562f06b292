// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/subjectmarks.h>

#include <QColor>
#include <QPen>
#include <QString>

#include <optional>

class ClearColors;
class TreeItem;

/** How a subject differs from what its place in the diagram gives it. */
struct ClearSubjectLook
{
    QString icon;            ///< the resource of its status icon; empty without one, or not asked
    QColor ink;              ///< its own colour of text; invalid for that of its level
    QColor background;       ///< its own colour behind the text; invalid for none
    std::optional<QPen> pen; ///< its own pen for the bone
    QColor colour;           ///< its own colour for the bone and all below; invalid for none
    Verdict verdict = Verdict::None;
    int votes = 0;

    /** That of @p subject, without its icon. */
    static ClearSubjectLook of(const TreeItem &subject);
    /** Whether it puts a colour behind the title, that of a category or not. */
    bool fillsTitle(bool isCategory) const;
    /** The resource of the status icon of @p subject. */
    static QString iconOf(const TreeItem &subject);
};

/** The colours and strokes that a bone is drawn with. */
struct ClearInk
{
    QPen line;         ///< of the bone; solid and black for the head, which has none
    QColor colour;     ///< what the bones below inherit; shows on the canvas
    QColor box;        ///< behind the title of a category, inside the head; invalid for others
    QColor background; ///< directly behind the title; invalid for none
    QColor text;
    QColor accent; ///< what stands out takes it: readable, and of the diagram's own hue
    Verdict verdict = Verdict::None;

    /** By how much the line of what stands out is wider. */
    static constexpr qreal broader = 1.4;

    /** For a subject of @p level in row @p category, of the head; @p inherited is what the bone
     * above it has as colour. The text is readable on whatever lies below it. */
    static ClearInk of(const ClearSubjectLook &look, int level, int category,
                       const QColor &inherited, const ClearColors &colors);

    /** The same for a bone that leads to one that is selected or pointed at. */
    ClearInk standingOut(int level, const ClearColors &colors) const;

    bool operator==(const ClearInk &o) const
    {
        return line == o.line && colour == o.colour && box == o.box && background == o.background &&
               text == o.text && accent == o.accent && verdict == o.verdict;
    }
};
