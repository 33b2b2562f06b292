// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/bonemenu.h>

#include <app/common/actionset.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/fishmodel.h>

#include <QCursor>
#include <QMenu>

namespace {

constexpr const char *taskEntries[] = {"subTask", "details", "asDiagram"};
constexpr const char *diagramEntries[] = {"rename", "details", "child", "delete"};
constexpr const char *commonEntries[] = {"",         "cut",   "copy", "paste",  "",        "link",
                                         "openLink", "style", "",     "expand", "contract"};

template <std::size_t size>
void fill(QMenu &menu, const char *const (&names)[size], const ActionSet &actions)
{
    for (const char *name : names) {
        if (*name)
            menu.addAction(actions.action(QLatin1String(name)));
        else
            menu.addSeparator();
    }
}

} // namespace

BoneMenu::BoneMenu(FishEditor *editor, const ActionSet *actions, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_actions(actions)
{
    disconnect(editor->view(), &GraphicsView::rightClicked, editor, &FishEditor::onRightClicked);
    connect(editor->view(), &GraphicsView::rightClicked, this, &BoneMenu::show);
}

/** The view has selected the bone, which the actions are for. */
void BoneMenu::show(const void *spear)
{
    if (!spear)
        return;
    QMenu menu;
    if (m_editor->modelType() == FISH_MODEL_NORMAL)
        fill(menu, taskEntries, *m_actions);
    else
        fill(menu, diagramEntries, *m_actions);
    fill(menu, commonEntries, *m_actions);
    menu.exec(QCursor::pos());
}
