// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QAbstractItemModel>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class FishModel;
class QJsonObject;
class TreeItem;

/**
 * One diagram as a document: its tree, its file, its unsaved changes and its autosave.
 *
 * The tree hangs under an invisible container, treeItem(), whose first child is the diagram's head.
 * A document without a head is possible (a file that holds no node) and has nothing to show.
 *
 * A FishModel owns the documents in its list. A document that is deleted while a model lists it
 * leaves that list first, announced; one that is reset or loaded into while listed announces a
 * reset of the model.
 */
class FISHBONE_EXPORT FishInfo : public QObject
{
    Q_OBJECT

public:
    /** An unnamed, empty document called "fish%1.json" after a counter of the process. */
    explicit FishInfo(QObject *parent = nullptr);
    /** Deletes the tree. */
    ~FishInfo() override;

    /** The document's file; a canonical path once setCurrentFile() named it. */
    QString fileName() const;
    /** Stores the file name and nothing else; see setCurrentFile(). */
    void setFileName(const QString &fileName);
    /** Whether there are unsaved changes. */
    bool modified() const;
    /** Saving does not clear the flag: the host does, here or with setCurrentFile(). */
    void setModified(bool modified);
    /** True until setCurrentFile() names the document. */
    bool isUntitled() const;
    /** The container of the tree, never null; its child 0 is the head. Owned by the document. */
    TreeItem *treeItem() const;
    /** How many nodes the last load made. */
    int nodeCount() const;
    /** Stores the number of nodes. */
    void setNodeCount(int count);
    /** How many nodes have no parent task: as loaded, or as last recounted. */
    int noParentNodeCount() const;
    /** Stores the number of nodes without a parent task. */
    void setNoParentNodeCount(int count);
    /** The file that autosave writes; empty until the first autosave picks one. */
    QString autoSaveFile() const;
    /** Chooses the file that autosave writes. */
    void setAutoSaveFile(const QString &fileName);
    /** The model that shows the document; not owned, null when there is none. */
    QAbstractItemModel *model() const;
    /** Stores the model, which is not owned, null for none; the document enters no list. */
    void setModel(QAbstractItemModel *model);

    /** Names the document after the canonical form of @p path; its changes count as saved then. */
    void setCurrentFile(const QString &path);
    /** The file-name part of @p path. */
    QString strippedName(const QString &path) const;
    /** The file-name part of fileName(). */
    QString userFriendlyCurrentFile() const;

    /** Empties the tree and clears the modified flag; counters, names and history stay. */
    void reset();
    /**
     * Builds the tree of @p root under the container, counts its nodes and stores @p model as
     * setModel() does: it is not owned. An empty object anywhere is skipped with all below it.
     * Linear in the number of nodes.
     */
    void loadFish(const QJsonObject &root, QAbstractItemModel *model);

    /**
     * Writes the diagram to @p fileName, whole or not at all; the old content stays when it fails.
     * A file in a folder that is not writable is written in place. False also for a tree that nests
     * too deep to be read again, and, leaving an empty file, for a document without a model.
     * saveError() tells which. Emits fileSaved() when it went well, from the event loop. Linear in
     * the number of nodes.
     */
    bool saveFile(const QString &fileName);
    /** Why the last saveFile() failed, in the user's language; empty when it did not. */
    QString saveError() const;
    /** saveFile() under the document's name, or saveAs() while it has none; emits what they do. */
    bool save();
    /** Asks for a file and writes it, as saveFile() does. The document keeps its name and its
     * flags. */
    bool saveAs();
    /** Offers to save unsaved changes, which emits what save() does; false when the user cancels or
     * saving fails. */
    bool maybeSave();
    /**
     * maybeSave() for a host that saves in its own way: the answer to save is that of @p save,
     * which is called instead of save() and may delete the document. Emits nothing by itself.
     */
    bool maybeSave(const std::function<bool()> &save);
    /**
     * Autosave: writes autoSaveFile(), or a new file named after the model's first head in the
     * application's autosave folder. Nobody may read it who may not read the document's own file.
     * False, with nothing touched, without a model or a head.
     */
    bool saveTmpFile();
    /**
     * What the document keeps beside its tree for whoever shows it: its look, page and palette. It
     * is saved with the document, stays when another subject becomes the head, and is empty without
     * a head.
     */
    QJsonObject view() const;
    /** Replaces view(); false, with nothing stored, without a head. */
    bool setView(const QJsonObject &view);

    /** Removes the file @p path. */
    bool deleteOldTmpFile(const QString &path);

    /**
     * Remembers the subject at @p index, the four latest at most; false when it is remembered
     * already or is no subject of the document's model.
     */
    bool addFishToHistory(const QModelIndex &index);
    /** Uuids of the remembered subjects, oldest first. */
    QStringList fishHistorys() const;

    /** Recounts noParentNodeCount() over the head's direct children. Linear in their number. */
    void updateNoParentNodeCount();

Q_SIGNALS:
    // All of them come from the event loop, once whatever changed the document has done its work,
    // and tell what holds by then: of changes that undo each other nothing is told.

    /** The document has unsaved changes now, or has none any more. */
    void modifiedChanged(bool modified);
    /** The document has another file name. */
    void fileNameChanged(const QString &fileName);
    /** saveFile() has written the document to @p fileName. Autosaves are not told. */
    void fileSaved(const QString &fileName);

private:
    friend class ChangeRecord; // notes when the document has changed
    friend class DocumentList; // notes where it is listed
    friend class FishModel;    // announces what changes the whole tree
    struct Private;

    void rebuild(const std::function<void()> &change);
    void clearTree();
    void buildTree(const QJsonObject &root);

    const std::unique_ptr<Private> m_d;
};
