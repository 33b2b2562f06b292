// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor_p.h>

#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/undo/undostack.h>

FishEditor::Private::Private(FishEditor &editor)
    : undoStack(new UndoStack(&editor))
    , view(new GraphicsView(&editor))
    , drawing(*view)
    , calls(*drawing.scene(), shown)
    , root(shown, drawing, calls)
    , runner(*undoStack, root, calls)
    , expansion(shown, drawing, root, calls)
    , edits({shown, drawing, root, calls, runner})
    , links({shown, drawing, root, calls, runner}, editor)
    , moves({shown, drawing, root, calls, runner})
    , framing(*view)
    , menu(editor)
    , autosave(&editor, [&editor] { editor.saveTmpFile(); })
{
}

void FishEditor::Private::end()
{
    undoStack->setOwner(nullptr);
    calls.abandon();
    drawing.end();
    // Its timer is a child of the editor and must not find this part of it gone.
    autosave.setInterval(0);
}

void FishEditor::Private::tellThrough(FishEditor &editor)
{
    connect(&calls, &EditorCalls::selectionChanged, &editor,
            [&editor] { Q_EMIT editor.copyAvailable(editor.hasSelection()); });
    connect(&expansion, &BoneExpansion::expanded, &editor, &FishEditor::onExpand);
    connect(&expansion, &BoneExpansion::contracted, &editor, &FishEditor::onCollaps);
    connect(&expansion, &BoneExpansion::allExpanded, &editor, &FishEditor::onExpandAll);
    connect(&expansion, &BoneExpansion::allContracted, &editor, &FishEditor::onCollapsAll);
    connect(&edits, &SubjectEdits::copied, &editor, &FishEditor::clipBoardAvailable);
    connect(&moves, &SubjectMoves::moved, &editor,
            [&editor](const QStringList &uuids, const QString &parent) {
                Q_EMIT editor.changeTaskParent(uuids, parent, CHANGE_PARENT_BY_MOVE);
            });
    connect(&moves, &SubjectMoves::dropped, &editor,
            [&editor](const QStringList &uuids, const QString &parent) {
                Q_EMIT editor.changeTaskParent(uuids, parent, CHANGE_PARENT_BY_DROP);
            });
    connect(&framing, &ViewFraming::zoomChanged, &editor, &FishEditor::zoomValueChanged);
    connect(&framing, &ViewFraming::rotationChanged, &editor, &FishEditor::rotateValueChanged);
}
