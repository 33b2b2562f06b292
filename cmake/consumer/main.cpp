// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/version.h>

#include <QApplication>

#include <cstring>

/**
 * Loads the template of the resources into a model, and succeeds when an editor shows it and the
 * library is the one that the headers belong to.
 */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FishModel model;
    model.loadFishTempl();
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    const bool isSameVersion = std::strcmp(fishboneVersion(), FISHBONE_VERSION_STRING) == 0;
    return editor.headSpear() && isSameVersion ? 0 : 1;
}
