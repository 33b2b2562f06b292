// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>

#include <QApplication>

/// Loads the template of the resources into a model, and succeeds when an editor shows it.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FishModel model;
    model.loadFishTempl();
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    return editor.headSpear() != nullptr ? 0 : 1;
}
