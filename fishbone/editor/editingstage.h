// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class CommandRunner;
class EditorCalls;
class ShownDrawing;
class ShownRoot;
class ShownSubject;

/** What the edits of an editor work with, each kind in a class of its own; all must live as long as
 * these. */
struct EditingStage
{
    const ShownSubject &shown;
    ShownDrawing &drawing;
    ShownRoot &root;
    EditorCalls &calls;
    CommandRunner &runner;
};
