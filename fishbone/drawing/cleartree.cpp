// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleartree.h>

#include <utility>

ClearTree::ClearTree(std::vector<ClearSubject> subjects)
    : m_subjects(std::move(subjects))
    , m_levels(m_subjects.size(), 0)
    , m_ends(m_subjects.size(), 0)
    , m_children(m_subjects.size(), 0)
    , m_firstChild(m_subjects.size() + 1, 0)
{
    const int count = size();
    for (int i = 1; i < count; ++i) {
        Q_ASSERT(at(i).parent >= 0 && at(i).parent < i);
        const std::size_t parent = std::size_t(at(i).parent);
        m_levels[std::size_t(i)] = m_levels[parent] + 1;
        ++m_firstChild[parent + 1];
    }
    for (std::size_t i = 1; i < m_firstChild.size(); ++i)
        m_firstChild[i] += m_firstChild[i - 1];
    std::vector<int> next(m_firstChild);
    for (int i = 1; i < count; ++i)
        m_children[std::size_t(next[std::size_t(at(i).parent)]++)] = i;
    for (int i = count - 1; i >= 0; --i) {
        const Children below = children(i);
        m_ends[std::size_t(i)] = below.size() ? end(below[below.size() - 1]) : i + 1;
    }
}

ClearTree::Children ClearTree::children(int index) const
{
    const int *all = m_children.data();
    return {all + m_firstChild[std::size_t(index)], all + m_firstChild[std::size_t(index) + 1]};
}
