// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class QWidget;

/** The commands that tell about the program: its keys, its version, the toolkit's. */
class HelpCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    HelpCommands(ActionSet *actions, QWidget *window);

private:
    void showKeys();
    void showAbout();

    ActionSet *m_actions;
    QWidget *m_window;
};
