// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpacked.h>

#include <utility>

bool ClearPacked::isOf(const ClearTree &tree, const std::vector<ClearLabel> &labels, int category,
                       bool usesBothSides, bool isHeadLeft) const
{
    const int count = tree.end(category) - category;
    if (int(m_labels.size()) != count || m_usesBothSides != usesBothSides ||
        m_isHeadLeft != isHeadLeft)
        return false;
    for (int i = 0; i < count; ++i) {
        if (tree.at(category + i).parent - category != m_parents[std::size_t(i)] && i > 0)
            return false;
        if (!(labels[std::size_t(category + i)] == m_labels[std::size_t(i)]))
            return false;
    }
    return true;
}

void ClearPacked::keep(const ClearTree &tree, const std::vector<ClearLabel> &labels, int category,
                       bool usesBothSides, bool isHeadLeft, std::vector<ClearShapes::Bone> bones)
{
    m_labels.assign(labels.begin() + category, labels.begin() + tree.end(category));
    m_parents.clear();
    m_parents.reserve(m_labels.size());
    for (int index = category; index < tree.end(category); ++index)
        m_parents.push_back(tree.at(index).parent - category);
    m_bones = std::move(bones);
    m_usesBothSides = usesBothSides;
    m_isHeadLeft = isHeadLeft;
    column = ClearColumn();
}
