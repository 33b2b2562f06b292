// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <benchmarks/synthetic.h>

/** A model with one synthetic document. */
class LoadedFish
{
public:
    LoadedFish(Synthetic::Shape shape, int count)
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        document = model.loadJsonFish(Synthetic::makeDocument(shape, count));
    }

    QModelIndex top() const { return model.index(0, 0); }
    TreeItem *head() const { return model.getFishHeadTreeItem(); }

    FishModel model;
    FishInfo *document;
};

/** An editor on such a model, showing nothing at first. */
class ShownFish : public LoadedFish
{
public:
    ShownFish(Synthetic::Shape shape, int count)
        : LoadedFish(shape, count)
    {
        // Autosaving in the middle of a measurement would be measured with it.
        editor.setAutosaveInterval(0);
        editor.setModel(&model);
    }

    void expandAll()
    {
        editor.setRootIndex(top());
        editor.expandAll();
    }

    FishEditor editor;
};

/** Handles what is pending, so that nothing of it falls into the next measurement. */
inline void settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}
