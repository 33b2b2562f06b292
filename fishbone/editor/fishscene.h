// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsScene>

#include <fishbone/fishbone_export.h>

/// The scene that holds the drawing of one diagram: the head spear is its only top-level item, all
/// others are below it.
class FISHBONE_EXPORT FishScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// A scene that shows nothing.
    explicit FishScene(QObject *parent = nullptr);

    /// The first view that shows the scene, or null.
    QGraphicsView *currentGraphicsView() const { return views().value(0); }

public Q_SLOTS:
    /// Thins the selection out, with the scene's signals blocked: a single selected item is
    /// remembered; of several, the first is deselected when it is the remembered one, else the
    /// last. Nothing in the library connects this.
    void handleSelectionChanged();

private:
    QGraphicsItem *m_lastAlone = nullptr; ///< only ever compared: the item may be gone
};
