// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearink.h>

#include <fishbone/drawing/clearcolors.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

namespace {
constexpr qreal categoryLine = 2.2;
constexpr qreal causeLine = 1.2;
constexpr qreal deepLine = 1;
constexpr int strongestLevel = 2;
constexpr int deepLevel = 3;
constexpr qreal tint = 0.16; ///< how much of a colour lies behind what stands out

qreal lineWidth(int level)
{
    if (level == 1)
        return categoryLine;
    return level == strongestLevel ? causeLine : deepLine;
}

bool isSeen(const QColor &color)
{
    return color.isValid() && color.alpha() > 0;
}
} // namespace

QString ClearSubjectLook::iconOf(const TreeItem &subject)
{
    return TaskStatusInfo(TaskStatus(subject.status()), subject.progress()).iconPath();
}

ClearSubjectLook ClearSubjectLook::of(const TreeItem &subject)
{
    ClearSubjectLook look;
    look.colour = SubjectMarks::colour(subject);
    look.verdict = SubjectMarks::verdict(subject);
    look.votes = SubjectMarks::votes(subject);
    if (const SpearStyle *const style = subject.spearStyle()) {
        look.ink = style->textColor(SpearStyle::ssNormal);
        look.background = style->textBkColor(SpearStyle::ssNormal);
        if (const QPen *const pen = style->broderPen(SpearStyle::ssNormal))
            look.pen = *pen;
    }
    return look;
}

bool ClearSubjectLook::fillsTitle(bool isCategory) const
{
    return isSeen(background) || (verdict == Verdict::RootCause && !isCategory);
}

ClearInk ClearInk::of(const ClearSubjectLook &look, int level, int category,
                      const QColor &inherited, const ClearColors &colors)
{
    ClearInk ink;
    QColor below = colors.paper();
    if (look.colour.isValid())
        ink.colour = ClearColors::readable(look.colour, below, ClearColors::enoughForLines);
    else if (level <= 1)
        ink.colour = level == 0 ? colors.outline() : colors.category(category);
    else
        ink.colour = inherited;
    if (level == 0)
        ink.box = look.colour.isValid() ? look.colour : colors.head();
    else
        ink.line =
            look.pen.value_or(QPen(ink.colour, lineWidth(level), Qt::SolidLine, Qt::RoundCap));
    if (level == 1)
        ink.box = look.colour.isValid() ? look.colour : ink.colour;
    if (isSeen(ink.box))
        below = ink.box;
    ink.verdict = look.verdict;
    ink.background = isSeen(look.background) ? look.background : QColor();
    if (look.verdict == Verdict::RootCause && level > 1 && !ink.background.isValid())
        ink.background = colors.rootCause();
    if (ink.background.isValid())
        below = ClearColors::mixed(ink.background, below, ink.background.alphaF());
    const bool isUsual = !ink.background.isValid() && (level > 1 || !look.colour.isValid());
    // What is ruled out is as pale as the deepest causes.
    const int inkLevel = look.verdict == Verdict::RuledOut && level > 1 ? deepLevel : level;
    // A text and a background that a subject has of its own are left to whoever has chosen both.
    if (look.ink.isValid())
        ink.text = isSeen(look.background) ? look.ink : ClearColors::readable(look.ink, below);
    else
        ink.text = isUsual ? colors.ink(inkLevel) : ClearColors::inkOn(below);
    ink.accent = colors.ink(strongestLevel);
    return ink;
}

ClearInk ClearInk::standingOut(int level, const ClearColors &colors) const
{
    ClearInk ink = *this;
    ink.line.setWidthF(line.widthF() + broader);
    if (level > 1 && !background.isValid()) {
        ink.background = ClearColors::mixed(colour, colors.paper(), tint);
        // A text that its subject gives a colour of its own keeps it.
        if (text == colors.ink(level))
            ink.text = accent;
    }
    return ink;
}
