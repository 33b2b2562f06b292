// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/boneexpansion.h>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/showndrawing.h>
#include <fishbone/editor/shownroot.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

BoneExpansion::BoneExpansion(const ShownSubject &shown, ShownDrawing &drawing, ShownRoot &root,
                             EditorCalls &calls)
    : m_shown(shown)
    , m_drawing(drawing)
    , m_root(root)
    , m_calls(calls)
{
}

void BoneExpansion::makeChildren(const QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *const subjects = qobject_cast<const FishModel *>(model);
    const QModelIndex own = m_shown.ownIndex(index);
    if (subjects && own.model() == subjects)
        SpearBuilder(*subjects).buildChildren(own);
}

void BoneExpansion::makeDescendants(const QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *const subjects = qobject_cast<const FishModel *>(model);
    const QModelIndex own = m_shown.ownIndex(index);
    if (subjects && own.model() == subjects)
        SpearBuilder(*subjects).buildDescendants(own);
}

void BoneExpansion::makeBranch(const QModelIndex &index, int level, int row,
                               SpearItem *parent) const
{
    const FishModel *const model = m_shown.fishModel();
    const QModelIndex own = m_shown.ownIndex(index);
    if (model && own.isValid())
        SpearBuilder(*model).buildSubtree(own, level, row, parent, m_drawing.head());
}

void BoneExpansion::expandAll()
{
    const EditorCall call(m_calls);
    if (m_drawing.head())
        makeDescendants(m_shown.model(), m_drawing.head()->modelIndex());
    m_root.expandBones(true);
}

void BoneExpansion::setAll(bool expand)
{
    const EditorCall call(m_calls);
    m_root.expandBones(expand);
    if (expand)
        Q_EMIT allExpanded();
    else
        Q_EMIT allContracted();
}

void BoneExpansion::setSelected(bool expand)
{
    const QModelIndex index = m_drawing.selectedIndex();
    if (!index.isValid())
        return;
    const EditorCall call(m_calls);
    m_drawing.selectedSpear()->setExpand(expand);
    if (expand)
        Q_EMIT expanded(index);
    else
        Q_EMIT contracted(index);
    if (call.isAlive())
        m_root.update(false);
}
