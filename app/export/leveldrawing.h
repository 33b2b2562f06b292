// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/editor/fisheditor.h>

#include <QSet>

class FishModel;
class FishScene;
class QModelIndex;

/** A drawing that no window shows, expanded to a number of levels: for a picture. It has no
 * buttons, but where a look says with one how much is left out. */
class LevelDrawing
{
public:
    /** Draws what is below @p root of @p model, which must outlive it and be drawn by nobody else.
     */
    LevelDrawing(FishModel &model, const QModelIndex &root);

    /** Draws in the look @p look from the next update() on. */
    void setLook(DiagramLook::Kind look, DiagramLook::Options options);

    /** Expands @p levels levels of bones below the main bones, Expansion::allLevels for all, and
     * contracts all others. */
    void expand(int levels);
    /** Expands those of @p subjects above which all are expanded, and contracts all others. */
    void expand(const QSet<const TreeItem *> &subjects);
    /** Lays out what has changed. */
    void update();

    FishScene *scene() const { return m_editor.scene(); }

private:
    void hideButtons();

    FishEditor m_editor;
};
