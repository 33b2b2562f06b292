// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <memory>
#include <vector>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>

class SpearItem;

/**
 * Some models and some editors that show their documents: what a random user works on, and whether
 * it still fits together.
 */
class RandomWorld
{
    Q_DISABLE_COPY(RandomWorld)

public:
    /**
     * The first document of each model has @p subjects subjects, when that is not 0; all others
     * have a few.
     */
    explicit RandomWorld(QRandomGenerator &random, int subjects = 0);
    ~RandomWorld();

    /** Lets go of everything, in random order. */
    void clear();
    /** Makes what there has to be at least, and takes away what is too much. */
    void keepInBounds();

    FishModel *anyModel();             ///< null when there is none
    FishEditor *anyEditor();           ///< null when there is none
    QModelIndex anyIndex(FishModel *); ///< any column; at times invalid
    TreeItem *anyNode(FishModel *);    ///< null when there is none
    SpearItem *anySpear(FishEditor *); ///< null when nothing is shown

    void addModel();
    void addEditor();
    void removeModel();
    void removeEditor();
    void loadDocument(FishModel *model);
    void loadBrokenDocument(FishModel *model);
    void reloadDocument(FishModel *model);
    void saveDocument(FishModel *model);
    void showSomething(FishEditor *editor);
    /** Gives an editor any model, and shows the first document, as the drawing stays otherwise. */
    void setModel(FishEditor *editor);
    /** What a host does after it has changed rows by itself. */
    void redraw(FishModel *model);
    void redrawAll();

    /** What is wrong and can be seen at once; empty when nothing is. */
    QString quickFault() const;
    /** What is wrong anywhere; looks at everything. */
    QString fault() const;

private:
    struct Model
    {
        std::unique_ptr<FishModel> model;
        std::unique_ptr<QAbstractItemModelTester> tester;
    };

    QString newPath();

    QRandomGenerator &m_random;
    QTemporaryDir m_folder;
    int m_subjects;
    std::vector<Model> m_models;
    std::vector<std::unique_ptr<FishEditor>> m_editors;
    quint32 m_documents = 0;
    int m_paths = 0;
};
