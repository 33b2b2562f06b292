// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/diagramcommands.h>

#include <app/diagram/diagramsession.h>

DiagramCommands::DiagramCommands(DiagramSession *session, ActionSet *actions, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_editor(session->editor())
    , m_actions(actions)
{
}

void DiagramCommands::setSession(DiagramSession *session)
{
    m_session = session;
    m_editor = session->editor();
}
