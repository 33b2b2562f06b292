// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/editorcalls.h>

#include <algorithm>
#include <utility>

#include <QGraphicsScene>

#include <fishbone/editor/editorcall.h>

EditorCalls::EditorCalls(QGraphicsScene &scene, const ShownSubject &shown)
    : m_scene(&scene)
    , m_shown(shown)
{
}

EditorCalls::~EditorCalls()
{
    abandon();
}

void EditorCalls::abandon()
{
    const QList<EditorCall *> calls = std::exchange(m_calls, {});
    for (EditorCall *call : calls)
        call->abandon();
}

bool EditorCalls::willLayOut() const
{
    return std::any_of(m_calls.cbegin(), m_calls.cend(),
                       [](const EditorCall *call) { return call->laysOut(); });
}

void EditorCalls::noteSelection()
{
    m_hasNewSelection = !m_calls.isEmpty();
    if (!m_hasNewSelection)
        Q_EMIT selectionChanged();
}
