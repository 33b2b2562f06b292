// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionSet;
class FishEditor;

/**
 * The context menu of a bone. It takes the place of the editor's own one, whose entries cannot be
 * added to, and offers the program's actions: those of the editor's menu in the present mode, and
 * the clipboard.
 */
class BoneMenu : public QObject
{
    Q_OBJECT

public:
    /** Takes over from @p editor. The actions are those of @p actions when the menu opens. */
    BoneMenu(FishEditor *editor, const ActionSet *actions, QObject *parent = nullptr);

private:
    void show(const void *spear);

    FishEditor *m_editor;
    const ActionSet *m_actions;
};
