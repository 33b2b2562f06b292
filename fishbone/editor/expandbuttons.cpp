// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// How the expand button of a bone gets spears that were never made: defined here, since the button
// itself knows no editor.

#include <fishbone/items/expanditem.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointer>

namespace {

QPointer<FishEditor> &fallbackEditor()
{
    static QPointer<FishEditor> editor;
    return editor;
}

/** The editor that shows @p scene, which may be null; else the fallback. */
FishEditor *editorOf(const QGraphicsScene *scene)
{
    const QList<QGraphicsView *> views = scene ? scene->views() : QList<QGraphicsView *>();
    for (const QGraphicsView *view : views) {
        for (QWidget *widget = view->parentWidget(); widget; widget = widget->parentWidget()) {
            if (auto *const editor = qobject_cast<FishEditor *>(widget))
                return editor;
        }
    }
    return fallbackEditor();
}

} // namespace

void ExpandItem::setFishEditor(FishEditor *editor)
{
    if (editor)
        fallbackEditor() = editor;
}

bool ExpandItem::generateMissingChildren(SpearItem *spear) const
{
    const TreeItem *const subject = spear->treeItem();
    if (!subject || subject->childCount() == 0 || !spear->childSpears().isEmpty())
        return false;
    FishEditor *const editor = editorOf(scene());
    if (!editor || !qobject_cast<FishModel *>(editor->model()))
        return false;
    // Builds nothing when the editor shows another model.
    editor->generateSpear(editor->model(), spear->modelIndex());
    return !spear->childSpears().isEmpty();
}
