// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>
#include <optional>

class FishEditor;
class FishModel;
class FishScene;
class LevelDrawing;
class TreeItem;

/**
 * What a picture shows of the diagram in an editor: the drawing as it stands, or another one of the
 * same diagram, expanded to other levels. That one is a copy, so that neither the drawing on the
 * screen nor the document hears of it.
 */
class PictureSource
{
    Q_DISABLE_COPY(PictureSource)

public:
    /** Of what @p editor shows, which must not change as long as this lives. */
    explicit PictureSource(FishEditor *editor);
    ~PictureSource();

    /** The title of the diagram. */
    QString title() const;
    /** How many levels there are below the main bones. */
    int depth() const;

    /** Shows so many levels below the main bones, Expansion::allLevels for all; nothing stands
     * for what is expanded on the screen. Linear in the size of the diagram. */
    void setLevels(std::optional<int> levels);
    /** Lays out again what the look of all subjects may have changed. */
    void update();

    FishScene *scene() const;

private:
    const TreeItem &root() const;
    void makeCopy();

    FishEditor *m_editor;
    std::optional<int> m_levels;
    std::unique_ptr<FishModel> m_copy;
    std::unique_ptr<LevelDrawing> m_drawing; ///< of the copy
};
