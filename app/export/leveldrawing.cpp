// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/leveldrawing.h>

#include <app/diagram/editorautosave.h>
#include <app/diagram/expansion.h>

#include <fishbone/model/fishmodel.h>

LevelDrawing::LevelDrawing(FishModel &model, const QModelIndex &root)
{
    endAutosave(m_editor);
    m_editor.setModel(&model);
    m_editor.setRootIndex(root);
}

void LevelDrawing::expand(int levels)
{
    Expansion::expandLevels(m_editor, levels);
}
