// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/editorcall.h>

#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

FishEditor::Call::Call(FishEditor *editor, AtItsEnd end)
    : m_editor(editor)
    , m_hold(editor->scene())
    , m_since(FishModel::changeStamp())
    , m_laysOut(end == AtItsEnd::LaysOut)
{
    m_editor->m_d->calls.append(this);
}

FishEditor::Call::~Call()
{
    if (!m_editor)
        return; // and with it the scene, whose selection nobody is told of any more
    m_editor->m_d->calls.removeOne(this);
    const QPointer<FishEditor> editor(m_editor);
    m_hold.release();
    // What a listener has changed was told by the scene at once, but not by the editor.
    if (editor && editor->m_d->calls.isEmpty() && editor->m_d->selectionChanged)
        editor->sceneSelectionChanged();
}

bool FishEditor::Call::hasListChanged() const
{
    const FishModel *const model = m_editor ? m_editor->fishModel() : nullptr;
    return model && model->isListChangedSince(m_since);
}

bool FishEditor::Call::hasChanges() const
{
    return hasListChanged() || !FishModel::fishChangedSince(m_since).isEmpty();
}

void FishEditor::Call::mark(Otherwise otherwise) const
{
    const QList<QPointer<FishInfo>> changed = FishModel::fishChangedSince(m_since);
    const bool marksShown =
        hasListChanged() || (changed.isEmpty() && otherwise == Otherwise::Shown);
    if (marksShown && m_editor)
        m_editor->setModified(true);
    for (const QPointer<FishInfo> &document : changed) {
        if (document)
            document->setModified(true);
    }
}
