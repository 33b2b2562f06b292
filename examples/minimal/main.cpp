// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>

#include <QApplication>

/** Shows the diagram that is named on the command line, or the template when none is. */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FishModel model;
    FishEditor editor;
    editor.setModel(&model);
    QObject::connect(&editor, &FishEditor::zoomValueChanged, &editor, &FishEditor::zoomFish);

    const QStringList arguments = QApplication::arguments();
    const int error =
        arguments.size() > 1 ? model.loadFishFromFile(arguments.at(1)) : model.loadFishTempl();
    if (error != MODEL_NO_ERROR) {
        qCritical("There is no diagram to show.");
        return 1;
    }
    editor.setRootIndex(model.index(0, 0));
    editor.resize(1000, 700);
    editor.show();
    editor.showEntire();
    return QApplication::exec();
}
