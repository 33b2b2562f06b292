// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/drawingstate.h>

#include <app/diagram/expansion.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearwalk.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>

void DrawingState::Subjects::add(const SpearItem &spear)
{
    const TreeItem *const item = spear.treeItem();
    if (!item)
        return;
    items.insert(item);
    if (TreeItem::isIdentity(item->uuid()))
        uuids.insert(item->uuid());
}

bool DrawingState::Subjects::contain(const SpearItem &spear) const
{
    const TreeItem *const item = spear.treeItem();
    return item && (items.contains(item) || uuids.contains(item->uuid()));
}

DrawingState DrawingState::capture(const FishEditor &editor)
{
    DrawingState state;
    SpearItem *const head = editor.headSpear();
    if (!head)
        return state;
    const QWidget *const viewport = editor.view()->viewport();
    state.m_center = editor.view()->mapToScene(viewport->rect().center());
    visitSpears(head, [&](const SpearItem *spear) {
        if (spear->isSelected() || spear->textItem()->isSelected())
            state.m_selected.add(*spear);
        if (spear != head && spear->isExpand() && !spear->childSpears().isEmpty())
            state.m_expanded.add(*spear);
        return true;
    });
    return state;
}

void DrawingState::restore(FishEditor &editor) const
{
    if (!editor.headSpear())
        return;
    QList<SpearItem *> selected;
    visitSpears(editor.headSpear(), [&](SpearItem *spear) {
        if (m_selected.contain(*spear))
            selected.append(spear);
        if (spear != editor.headSpear() && m_expanded.contain(*spear))
            Expansion::setExpanded(editor, *spear, true);
        return true;
    });
    editor.updateFish(false);
    editor.selectSpears(selected);
    editor.view()->centerOn(m_center);
}

DrawingState DrawingState::expanding(const QSet<const TreeItem *> &subjects) const
{
    DrawingState state = *this;
    state.m_expanded = {subjects, {}};
    return state;
}

DrawingState DrawingState::expandedAs(const DrawingState &other) const
{
    DrawingState state = *this;
    state.m_expanded = other.m_expanded;
    return state;
}
