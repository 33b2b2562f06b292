// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fishlayout.h>

#include <numeric>

#include <fishbone/base/onepass.h>
#include <fishbone/editor/spearbuilder.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>

namespace {
constexpr double firstOffset = 30.0;      ///< of the first child along its parent
constexpr double secondSideOffset = 60.0; ///< of the first bone on the head's second side
constexpr double minimumAdvance = 30.0;   ///< per child of a horizontal bone
constexpr double textClearance = 10.0;    ///< behind the text that children of direction -1 pass
} // namespace

FishLayout::FishLayout(SpearItem *head)
{
    m_entries.push_back({head, 1, 0, 0});
    for (std::size_t current = 0; current < m_entries.size(); ++current) {
        const QList<SpearItem *> &children = m_entries[current].spear->knownChildSpears();
        m_entries[current].firstChild = int(m_entries.size());
        m_entries[current].childCount = children.count();
        const int level = m_entries[current].level + 1;
        for (SpearItem *child : children)
            m_entries.push_back({child, level, 0, 0});
    }
}

void FishLayout::refreshSpears(Lines lines)
{
    const auto reset = [lines](SpearItem *spear, int direction) {
        if (lines == Lines::Keep)
            spear->beginLayout(direction);
        else
            spear->initData(direction);
        spear->updateTaskStatus();
    };
    const OnePass pass;
    reset(m_entries.front().spear, 0);
    updateLinkItem(m_entries.front().spear);
    for (const Entry &parent : m_entries) {
        for (int i = 0; i < parent.childCount; ++i) {
            const Entry &child = m_entries[std::size_t(parent.firstChild + i)];
            reset(child.spear, SpearBuilder::directionFor(parent.spear, parent.level, i));
            child.spear->setVisible(parent.spear->isExpand());
            refreshCompanions(child);
        }
    }
}

void FishLayout::refreshCompanions(const Entry &entry) const
{
    updateLinkItem(entry.spear);
    if (entry.childCount > 0)
        entry.spear->updateExpandButton();
    const TreeItem *const subject = entry.spear->treeItem();
    if (entry.spear->expandBuddy() && subject && subject->childCount() < 1)
        entry.spear->setExpandBuddy(nullptr);
}

void FishLayout::sizeSpears()
{
    // Backwards through the levels, so that every child is complete before its parent asks.
    for (auto parent = m_entries.crbegin(); parent != m_entries.crend(); ++parent) {
        if (!parent->spear->isExpand())
            continue;
        for (int i = 0; i < parent->childCount; ++i) {
            const SpearItem *const child = m_entries[std::size_t(parent->firstChild + i)].spear;
            parent->spear->sumChildSize(QSizeF(child->spearWidth(), child->spearHeight()));
        }
    }
}

void FishLayout::placeSpears()
{
    m_entries.front().spear->updatePosition(QPointF(0, 0));
    for (const Entry &parent : m_entries) {
        if (parent.spear->direction() != 0)
            placeAlongSlantedBone(parent);
        else
            placeAlongHorizontalBone(parent);
    }
}

void FishLayout::placeAlongSlantedBone(const Entry &parent)
{
    double offset = firstOffset;
    for (int i = 0; i < parent.childCount; ++i) {
        SpearItem *const child = m_entries[std::size_t(parent.firstChild + i)].spear;
        child->setOffset(offset);
        offset += child->spearHeight();
        child->place(parent.spear);
    }
}

void FishLayout::placeAlongHorizontalBone(const Entry &parent)
{
    const bool isHead = parent.spear->isHeader();
    const int sides = isHead ? 2 : 1;
    double offsets[2] = {firstOffset, secondSideOffset};
    for (int i = 0; i < parent.childCount; ++i) {
        SpearItem *const child = m_entries[std::size_t(parent.firstChild + i)].spear;
        double &offset = offsets[i % sides];
        // A horizontal child of a horizontal bone keeps its place and takes up no room.
        if (isHead || child->direction() != 0) {
            const bool passesText = !isHead && child->direction() == -1;
            child->setOffset(passesText ? offset + parent.spear->textWidth() + textClearance
                                        : offset);
            offset += qMax(minimumAdvance, child->spearWidth());
        }
        child->place(parent.spear);
    }
}

int FishLayout::itemCount() const
{
    return std::accumulate(
        m_entries.cbegin(), m_entries.cend(), 0, [](int count, const Entry &entry) {
            const SpearItem &spear = *entry.spear;
            const int always = 3; // the spear, its text and its status
            return count + always + (spear.linkItem() ? 1 : 0) + (spear.expandBuddy() ? 1 : 0);
        });
}

void FishLayout::expandBones(bool expand)
{
    for (auto entry = m_entries.cbegin() + 1; entry != m_entries.cend(); ++entry)
        entry->spear->setExpand(expand);
}
