// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearpointer.h>

/// The state of a view.
struct GraphicsView::Private
{
    explicit Private(FishEditor *shownBy)
        : editor(shownBy)
    {
    }

    FishEditor *const editor;
    QList<SpearPointer> selected; ///< the selection at the last left press, in document order
    QList<SpearPointer> moving;   ///< those of them without a selected ancestor
    SpearPointer linkedSpear;
    SpearPointer pressedSpear;
    int dropRow = 0;
    double zoomRemainder = 0; ///< what smooth zooming has asked for beyond whole steps
    bool pressed = false;
};
