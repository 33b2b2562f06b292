// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/leveldrawing.h>

#include <app/diagram/expansion.h>

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
    QList<SpearItem *> waiting =
        m_editor.headSpear() ? m_editor.headSpear()->childSpears() : QList<SpearItem *>();
    while (!waiting.isEmpty()) {
        SpearItem *const spear = waiting.takeLast();
        if (!subjects.contains(spear->treeItem()))
            continue;
        Expansion::setExpanded(m_editor, *spear, true);
        waiting += spear->childSpears();
    }
    update();
}

void LevelDrawing::update()
{
    m_editor.updateFish(false);
    hideButtons();
}

void LevelDrawing::hideButtons()
{
    if (m_editor.look() != DiagramLook::Classic)
        return;
    const QList<QGraphicsItem *> items = scene()->items();
    for (QGraphicsItem *item : items) {
        if (item->type() == ExpandItem::Type)
            item->setVisible(false);
    }
}
