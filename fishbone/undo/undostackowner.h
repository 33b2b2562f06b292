// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

/**
 * Who shows what the commands of an UndoStack change, and so has to know when any of them may run,
 * whoever calls the stack. Must outlive its stack or take itself off.
 */
class UndoStackOwner
{
public:
    /** push(), undo(), redo() or setCurrentIndex() begins; calls of listeners come in between. */
    virtual void stackCallBegins() = 0;
    /** The latest call that has not ended ends; @p ran tells whether a command ran in it. */
    virtual void stackCallEnds(bool ran) = 0;

protected:
    ~UndoStackOwner() = default;
};
