// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QJsonObject>
#include <QPersistentModelIndex>
#include <QPointer>

#include <fishbone/drawing/fishdrawing.h>
#include <fishbone/editor/autosave.h>
#include <fishbone/editor/bonemenu.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/stackowner.h>
#include <fishbone/editor/viewframing.h>
#include <fishbone/items/spearpointer.h>
#include <fishbone/model/fishinfo.h>

/// The root that was shown last, remembered across what makes its index invalid.
struct ShownRoot
{
    QPointer<FishInfo> document;
    const TreeItem *subject = nullptr; ///< only compared: it may be gone
    bool isHead = false;               ///< the document's head, whichever that is
};

/// The state of an editor. What it has in here is made in this order.
struct FISHBONE_NO_EXPORT FishEditor::Private
{
    Q_DISABLE_COPY(Private)

    /// Makes the view, which the editor's layout takes over.
    explicit Private(FishEditor *editor);

    UndoStack *const undoStack; ///< a child of the editor, as the view is
    GraphicsView *const view;
    StackOwner stackOwner;
    FishDrawing drawing;
    ViewFraming framing;
    BoneMenu menu;
    Autosave autosave;
    std::unique_ptr<FishScene> scene = std::make_unique<FishScene>();

    QPointer<QAbstractItemModel> model;
    QPersistentModelIndex rootIndex;
    ShownRoot shown;
    bool rootRemoved = false; ///< the shown root left the model; it may come back
    SpearPointer headSpear;

    QJsonObject copyBuffer;
    bool pasteAsNew = false;

    QList<Call *> calls;           ///< the innermost one last
    std::unique_ptr<Call> removal; ///< from the announcement that the shown root goes to its end
    bool selectionChanged = false; ///< within them
};
