// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureprogress.h>
#include <fishbone/exchange/scenepainter.h>

#include <QRectF>
#include <QSizeF>

class QGraphicsScene;
class QPainter;
struct PictureOptions;

/** Where the drawing stands in the picture, both in picture units. */
struct PictureFrame
{
    QSizeF size;
    QRectF target;
    QRectF source; ///< in scene units
};

/** A picture under way. */
class PictureDrawing
{
    Q_DISABLE_COPY(PictureDrawing)

public:
    /** Draws @p scene, of which @p extent tells, into @p frame. All of them live on. */
    PictureDrawing(QGraphicsScene &scene, const SceneExtent &extent, const PictureFrame &frame,
                   const PictureOptions &options)
        : m_scene(scene)
        , m_extent(extent)
        , m_frame(frame)
        , m_options(options)
        , m_progress(options, extent.items)
    {
    }

    /** Where the drawing stands in the picture. */
    const PictureFrame &frame() const { return m_frame; }
    /** What was asked for. */
    const PictureOptions &options() const { return m_options; }
    /** What there is in the scene. */
    const SceneExtent &extent() const { return m_extent; }
    /** What is drawn. */
    const QGraphicsScene &scene() const { return m_scene; }
    /** Who follows and may end it. */
    PictureProgress &progress() { return m_progress; }

    /** Draws all; false when it was cancelled. */
    bool paint(QPainter &painter);
    /** Draws every so many items. */
    void paintSample(QPainter &painter, int step) const;

private:
    ScenePainter painterOfItems() const
    {
        return {m_scene, m_extent, m_frame.source, m_frame.target};
    }

    QGraphicsScene &m_scene;
    const SceneExtent &m_extent;
    const PictureFrame &m_frame;
    const PictureOptions &m_options;
    PictureProgress m_progress;
};
