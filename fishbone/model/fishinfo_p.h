// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishinfo.h>

#include <fishbone/model/documentsaving.h>
#include <fishbone/model/documentstate.h>
#include <fishbone/model/recentsubjects.h>
#include <fishbone/model/treeitem.h>

#include <QPointer>

#include <memory>

/** The state of a document. */
struct FISHBONE_NO_EXPORT FishInfo::Private
{
    Q_DISABLE_COPY(Private)

    explicit Private(FishInfo *info, const QString &name)
        : document(info)
        , state(name)
        , saving(*info)
    {
        makeContainer();
    }

    /** An empty tree in place of the one that there is. */
    void makeContainer()
    {
        container = std::make_unique<TreeItem>();
        container->setDocument(document);
    }
    /** Exchanges the trees of two documents. */
    void swapTree(Private &other)
    {
        container.swap(other.container);
        container->setDocument(document);
        other.container->setDocument(other.document);
    }

    FishInfo *const document;
    std::unique_ptr<TreeItem> container;
    int nodeCount = 0;
    int noParentNodeCount = 0;

    DocumentState state;
    DocumentSaving saving;
    QString autoSaveFile;
    RecentSubjects history;

    QPointer<QAbstractItemModel> model;
    FishModel *owner = nullptr; ///< the model that lists the document; kept by its DocumentList
    int rowNumber = 0;          ///< in that list
    quint64 changeStamp = 0;    ///< of the last change that its model told; kept by ChangeRecord
};
