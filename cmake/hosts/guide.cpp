// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// Takes the place of main.cpp in a host of the embedding guide: its window does what the guide
// promises.

#include <window.h>

#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>

#include <QAction>
#include <QApplication>

#include <cstdio>

/** Triggers the entry @p text of the menus of @p window. */
static bool choose(const Window &window, const QString &text)
{
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (QAction *const action : actions) {
        if (action->text() == text) {
            action->trigger();
            return true;
        }
    }
    return false;
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Window window;
    window.resize(1000, 700);
    window.show();

    auto *const editor = window.findChild<FishEditor *>();
    if (!editor || !editor->headSpear() || editor->headSpear()->childSpears().isEmpty()) {
        std::printf("The window shows no diagram.\n");
        return 1;
    }
    SpearItem *const bone = editor->headSpear()->childSpears().first();
    const QModelIndex index = editor->spearIndex(bone);
    const int rows = index.model()->rowCount(index);
    editor->selectSpears({bone});
    const bool inserts =
        choose(window, Window::tr("&New cause")) && index.model()->rowCount(index) == rows + 1;
    const bool undoes =
        choose(window, Window::tr("&Undo")) && index.model()->rowCount(index) == rows;
    editor->zoomIn(50);
    const bool zooms = editor->view()->transform().m11() > 1.9;
    std::printf("The window inserts: %d, undoes: %d, zooms: %d\n", inserts, undoes, zooms);
    return inserts && undoes && zooms ? 0 : 1;
}
