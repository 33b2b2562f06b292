// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/bonemenuentries.h>

#include <app/common/actionset.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>

#include <QMenu>
#include <QTreeView>

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

void fillFor(const FishEditor &editor, QMenu &menu, const ActionSet &actions, QMenu *marks)
{
    if (editor.modelType() == FISH_MODEL_NORMAL)
        fill(menu, taskEntries, actions);
    else
        fill(menu, diagramEntries, actions);
    menu.addMenu(marks);
    fill(menu, commonEntries, actions);
}

} // namespace

void offerActionsInBoneMenu(FishEditor &editor, const ActionSet &actions, QMenu *marks)
{
    editor.setBoneMenuFiller([&editor, &actions, marks](QMenu &menu, SpearItem *) {
        menu.clear();
        fillFor(editor, menu, actions, marks);
    });
}

void offerActionsInTreeMenu(QTreeView &tree, FishEditor &editor, const ActionSet &actions,
                            QMenu *marks)
{
    tree.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&tree, &QWidget::customContextMenuRequested, &editor, [&, marks](QPoint pos) {
        if (!editor.hasSelection())
            return;
        auto *const menu = new QMenu(&tree);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        fillFor(editor, *menu, actions, marks);
        menu->popup(tree.viewport()->mapToGlobal(pos));
    });
}
