// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/editorcall.h>

#include <QGraphicsScene>

#include <fishbone/editor/shownsubject.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

EditorCall::EditorCall(EditorCalls &calls, AtItsEnd end)
    : m_calls(&calls)
    , m_hold(calls.m_scene)
    , m_since(FishModel::changeStamp())
    , m_laysOut(end == AtItsEnd::LaysOut)
{
    calls.m_calls.append(this);
}

EditorCall::~EditorCall()
{
    if (!m_calls)
        return; // and with the editor the scene, whose selection nobody is told of any more
    m_calls->m_calls.removeOne(this);
    const QPointer<EditorCalls> calls(m_calls);
    m_hold.release();
    // What a listener has changed was told by the scene at once, but not by the editor.
    if (calls && calls->m_calls.isEmpty() && calls->m_hasNewSelection)
        calls->noteSelection();
}

bool EditorCall::hasListChanged() const
{
    const FishModel *const model = m_calls ? m_calls->m_shown.fishModel() : nullptr;
    return model && model->isListChangedSince(m_since);
}

bool EditorCall::hasChanges() const
{
    return hasListChanged() || !FishModel::fishChangedSince(m_since).isEmpty();
}

void EditorCall::mark(Otherwise otherwise) const
{
    const QList<QPointer<FishInfo>> changed = FishModel::fishChangedSince(m_since);
    const bool marksShown =
        hasListChanged() || (changed.isEmpty() && otherwise == Otherwise::Shown);
    FishInfo *const shown = marksShown && m_calls ? m_calls->m_shown.document() : nullptr;
    if (shown)
        shown->setModified(true);
    for (const QPointer<FishInfo> &document : changed) {
        if (document)
            document->setModified(true);
    }
}
