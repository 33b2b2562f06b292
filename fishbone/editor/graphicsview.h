// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QGraphicsView>
#include <QModelIndex>

#include <fishbone/fishbone_export.h>
#include <fishbone/items/spearpointer.h>

class FishEditor;
class FishScene;
class QMimeData;
class TreeItem;

/**
 * The editor's view. Besides scrolling by hand and selecting by click it moves subjects: a left
 * press fades the selected spears, moving the mouse marks the spear under the cursor as the target
 * together with the row at which they would land, and the release asks the editor, through
 * moveSpear(), to carry out the move. Drags from other views are shown and reported the same way
 * through dropTo(). The wheel scrolls sideways and zooms with Ctrl; two fingers on a touchpad
 * scroll both ways, a pinch zooms. A right click asks for the context menu.
 *
 * Spears that die or are rebuilt while a button is held are forgotten. A dialog that opens
 * meanwhile ends the move as a release over nothing does.
 */
class FISHBONE_EXPORT GraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    /** A view without a parent widget, for @p editor, which must outlive it. */
    explicit GraphicsView(FishEditor *editor);
    ~GraphicsView() override;

    /** The spear shown as the target of a move or drop; null when there is none. */
    SpearItem *linkedSpear() const;

    /**
     * The row below linkedSpear() at which @p moving would be inserted when released at @p pos
     * (viewport coordinates). @p moving may be null. 0 without a linked spear.
     */
    int insertRow(const QPoint &pos, SpearItem *moving) const;

    /**
     * Ends a move with the mouse whose release will not come here, or shall not count: what was
     * moved goes back. Emits moveSpear() without a target; nothing while no button is down. Linear
     * in the number of spears that were moved.
     */
    void abandonMove();

Q_SIGNALS:
    /** The context menu is wanted for @p item, a SpearItem, or for the canvas (null). */
    void rightClicked(void *item);
    /**
     * Moving subjects with the mouse has ended at @p pos (viewport coordinates) over @p target
     * (invalid: over none that may take them), where they would be inserted at @p row. The items
     * belong to the scene.
     */
    void moveSpear(const QPoint &pos, const QList<QGraphicsItem *> &items,
                   const QModelIndex &target, int row);
    /**
     * @p data was dropped on @p target; it would be inserted at @p row. The data is a copy that
     * lives until receivers with a queued connection have been called as well.
     */
    void dropTo(const QMimeData *data, const QModelIndex &target, int row);
    /** Declared for the host; the view never emits it. A spear belongs to its scene. */
    void spearItemClicked(SpearItem *spear);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    void enterEvent(QEnterEvent *event) override;
#else
    void enterEvent(QEvent *event) override;
#endif

private:
    struct Private;

    template <typename Part>
    bool handle(QEvent *event, Part part);
    void press(QMouseEvent *event);
    QList<QGraphicsItem *> itemsAround(const QPoint &pos) const;
    SpearItem *topmostSpearAround(const QPoint &pos) const;
    void reportMove(const QPoint &pos, SpearItem *target);

    const std::unique_ptr<Private> m_d;
};
