// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/editor/fisheditor.h>

class FishModel;
class FishScene;
class QModelIndex;

/** A drawing that no window shows, expanded to a number of levels: for a picture. */
class LevelDrawing
{
public:
    /** Draws what is below @p root of @p model, which must outlive it and be drawn by nobody else.
     */
    LevelDrawing(FishModel &model, const QModelIndex &root);

    /** Expands @p levels levels of bones below the main bones, Expansion::allLevels for all. */
    void expand(int levels);
    /** Lays out what has changed. */
    void update() { m_editor.updateFish(false); }

    FishScene *scene() const { return m_editor.scene(); }

private:
    FishEditor m_editor;
};
