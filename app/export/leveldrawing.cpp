// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/leveldrawing.h>

#include <app/diagram/expansion.h>

#include <fishbone/model/fishmodel.h>

LevelDrawing::LevelDrawing(FishModel &model, const QModelIndex &root)
{
    m_editor.setAutosaveInterval(0);
    m_editor.setModel(&model);
    m_editor.setRootIndex(root);
}

void LevelDrawing::expand(int levels)
{
    Expansion::expandLevels(m_editor, levels);
}
