// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPersistentModelIndex>
#include <QPointF>
#include <QPointer>

class FishEditor;
class QRubberBand;
class SpearItem;

/** A frame that the mouse draws on the canvas: it selects the bones whose titles it touches. */
class RubberBand
{
    Q_DISABLE_COPY(RubberBand)

public:
    /** For the canvas of @p editor, which outlives this. */
    explicit RubberBand(FishEditor *editor);

    /** Begins at @p pos of the viewport. What is selected now stays so if @p adds. */
    void begin(const QPoint &pos, bool adds);
    /** Reaches to @p pos now. */
    void reach(const QPoint &pos);
    /** The selection is made. */
    void end();
    /** Selects what was selected in the beginning. */
    void cancel();

private:
    QList<SpearItem *> living() const;
    QList<SpearItem *> touched(const QPolygonF &frame) const;

    FishEditor *m_editor;
    QPointer<QRubberBand> m_frame; ///< lives as long as the viewport
    QPointF m_origin;              ///< in the scene, which may be scrolled meanwhile
    QList<QPersistentModelIndex> m_before;
    bool m_adds = false;
};
