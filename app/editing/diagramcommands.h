// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class DiagramSession;
class FishEditor;

/** Commands on the diagram of the current tab. There always is one: the session of a window without
 * documents shows nothing. */
class DiagramCommands : public QObject
{
    Q_OBJECT

public:
    /** The actions are added to @p actions, which outlives this object. */
    DiagramCommands(DiagramSession *session, ActionSet *actions, QObject *parent);

    /** From now on the commands are about the diagram of @p session. */
    virtual void setSession(DiagramSession *session);

    /** Enables the actions as the diagram and what is selected in it allow. */
    virtual void updateActions() = 0;

protected:
    DiagramSession *m_session;
    FishEditor *m_editor; ///< that of the session
    ActionSet *m_actions;
};
