// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

#include <fishbone/editor/editorcalls.h>
#include <fishbone/items/sceneselection.h>

/**
 * One call into an editor, from its first change to its last report. Everything that changes
 * subjects or the drawing is done within one:
 *
 * - What listeners may do, up to the end of the editor, they may do at any signal in between;
 *   isAlive() tells whether there is an editor left, and nothing is kept across a signal but
 *   guarded pointers and persistent indexes.
 * - Changes of the selection are told once, when the outermost call is through: a subject that is
 *   deleted or hidden loses its selection item by item, in a tree that is not whole yet.
 * - mark() marks the documents that have changed since, whichever they are.
 */
class EditorCall
{
    Q_DISABLE_COPY(EditorCall)

public:
    /** What to mark when no model has told of a change. */
    enum class Otherwise { Nothing, Shown };
    /** Whether the call lays out at its end, so that nobody needs to within it. */
    enum class AtItsEnd { Nothing, LaysOut };

    /** A call that begins, one of @p calls. */
    explicit EditorCall(EditorCalls &calls, AtItsEnd end = AtItsEnd::Nothing);
    ~EditorCall();

    /** Whether the editor still lives. */
    bool isAlive() const { return m_calls; }
    /** Whether it lays out at its end. */
    bool laysOut() const { return m_laysOut; }
    /** The editor dies before the call has ended. */
    void abandon() { m_calls = nullptr; }
    /** Whether any document has changed since the call began. */
    bool hasChanges() const;
    /** Marks the documents that have; the shown one when documents came or went. */
    void mark(Otherwise otherwise) const;

private:
    bool hasListChanged() const;

    EditorCalls *m_calls;
    SelectionHold m_hold;
    quint64 m_since;
    bool m_laysOut;
};
