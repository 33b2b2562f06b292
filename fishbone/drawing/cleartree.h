// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/cleartext.h>

#include <QString>

#include <optional>
#include <vector>

/** What a layout has to know of one subject. */
struct ClearSubject
{
    int parent = -1; ///< the index of its parent; -1 for the head, which comes first
    QString title;
    bool hasStatus = false; ///< a status icon stands before the title
    bool hasLink = false;   ///< a link icon stands after it
    bool isFilled = false;  ///< a colour of its own lies behind the title
    int votes = 0;          ///< a number that stands before that icon; 0 for none
    int hidden = 0;         ///< how many subjects below it are not shown; 0 when it is expanded
    std::optional<ClearFont> font; ///< its own font in place of that of its level
};

/** The subjects of a drawing in document order, each before its children and these in row order. */
class ClearTree
{
public:
    /** A stretch of indexes. */
    struct Children
    {
        const int *first;
        const int *last;

        const int *begin() const { return first; }
        const int *end() const { return last; }
        int size() const { return int(last - first); }
        int operator[](int row) const { return first[row]; }
    };

    /** Takes over @p subjects, which are in document order. Linear. */
    explicit ClearTree(std::vector<ClearSubject> subjects);

    int size() const { return int(m_subjects.size()); }
    const ClearSubject &at(int index) const { return m_subjects[std::size_t(index)]; }
    /** The children of @p index in row order. */
    Children children(int index) const;
    /** 0 for the head, 1 for a category and so on. */
    int level(int index) const { return m_levels[std::size_t(index)]; }
    /** One past the last subject below @p index. */
    int end(int index) const { return m_ends[std::size_t(index)]; }
    /** How many subjects are below @p index. */
    int descendants(int index) const { return end(index) - index - 1; }

private:
    std::vector<ClearSubject> m_subjects;
    std::vector<int> m_levels;
    std::vector<int> m_ends;
    std::vector<int> m_children; ///< of the first subject, then those of the second and so on
    std::vector<int> m_firstChild;
};
