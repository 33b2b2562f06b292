// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/editor/autosave.h>
#include <fishbone/editor/boneexpansion.h>
#include <fishbone/editor/bonemenu.h>
#include <fishbone/editor/commandrunner.h>
#include <fishbone/editor/editorcalls.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/showndrawing.h>
#include <fishbone/editor/shownroot.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/editor/subjectedits.h>
#include <fishbone/editor/subjectlinks.h>
#include <fishbone/editor/subjectmoves.h>
#include <fishbone/editor/viewframing.h>

/** The parts of an editor, which knows nothing but them. Each is made of the ones before it. */
struct FISHBONE_NO_EXPORT FishEditor::Private
{
    Q_DISABLE_COPY(Private)

    /** Makes the view, which the editor's layout takes over. */
    explicit Private(FishEditor &editor);
    /** The editor ends: so do the calls under way, and the drawing is taken down, unheard. */
    void end();

    /** Has the editor send what the parts tell. */
    void tellThrough(FishEditor &editor);

    UndoStack *const undoStack; ///< a child of the editor, as the view is
    GraphicsView *const view;
    ShownSubject shown;
    ShownDrawing drawing;
    EditorCalls calls;
    ShownRoot root;
    CommandRunner runner;
    BoneExpansion expansion;
    SubjectEdits edits;
    SubjectLinks links;
    SubjectMoves moves;
    ViewFraming framing;
    BoneMenu menu;
    Autosave autosave;
};
