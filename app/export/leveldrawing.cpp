// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/leveldrawing.h>

#include <app/diagram/expansion.h>

#include <fishbone/base/preorder.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

LevelDrawing::LevelDrawing(FishModel &model, const QModelIndex &root)
{
    m_editor.setAutosaveInterval(0);
    m_editor.setModel(&model);
    m_editor.setRootIndex(root);
}

void LevelDrawing::setLook(DiagramLook::Kind look, DiagramLook::Options options)
{
    options.hasButtons = false;
    m_editor.setLookOptions(options);
    if (look != m_editor.look())
        m_editor.setLook(look);
}

void LevelDrawing::expand(int levels)
{
    Expansion::expandLevels(m_editor, levels);
    hideButtons();
}

void LevelDrawing::expand(const QSet<const TreeItem *> &subjects)
{
    m_editor.expandorContractAll(false);
    SpearItem *const head = m_editor.headSpear();
    const auto isWanted = [&](const SpearItem &spear) {
        return &spear == head || subjects.contains(spear.treeItem());
    };
    const auto childrenOf = [&](const SpearItem &spear) {
        return isWanted(spear) ? spear.childSpears() : QList<SpearItem *>();
    };
    visitPreOrder(head, childrenOf, [&](SpearItem *spear) {
        if (spear != head && isWanted(*spear))
            Expansion::setExpanded(m_editor, *spear, true);
        return true;
    });
    update();
}

void LevelDrawing::update()
{
    m_editor.updateFish(false);
    hideButtons();
}

void LevelDrawing::hideButtons()
{
    if (m_editor.look() == DiagramLook::Clear)
        return; // whose options say so
    const QList<QGraphicsItem *> items = scene()->items();
    for (QGraphicsItem *item : items) {
        if (item->type() == ExpandItem::Type)
            item->setVisible(false);
    }
}
