// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QJsonObject>
#include <QList>
#include <QModelIndex>
#include <QObject>

#include <fishbone/editor/editingstage.h>

class QGraphicsItem;
class TreeItem;

/**
 * What is inserted, copied, pasted, deleted and changed in the subjects of a drawing. Concerns the
 * first selected subject where none is named, and does nothing without one.
 */
class SubjectEdits : public QObject
{
    Q_OBJECT

public:
    explicit SubjectEdits(const EditingStage &stage);

    void insertBefore(); ///< a new subject
    void insertAfter();  ///< a new subject
    void insertChild();  ///< a new subject
    void insertParent(); ///< a new subject between the selected one and its parent
    void insertFree();   ///< a new document; not undoable
    /** Appends @p subject below the one at @p parent. While undone it belongs to the history. */
    void insertChild(const QModelIndex &parent, TreeItem *subject);
    /** Copies the attributes of @p source to the subject at @p index. Not undoable. */
    void edit(const QModelIndex &index, TreeItem *source);
    /** Gives the subject at @p index the title @p title. */
    void rename(const QModelIndex &index, const QString &title);

    /** Deletes the subject at @p index with all below it. */
    void remove(const QModelIndex &index);
    /** Deletes the subjects of a snapshot. */
    void remove(const QJsonObject &snapshot);
    /** Deletes what is selected. */
    void removeSelected();

    /** The snapshot of what is selected. */
    QJsonObject selectedSnapshot() const;
    /** Whether the copy buffer holds anything. */
    bool hasCopy() const { return !m_copy.isEmpty(); }
    /** Copies what is selected into the buffer. */
    void copySelected();
    /** Copies what is selected, then deletes it. */
    void cutSelected();
    /** Pastes the buffer below the subject at @p index and rebuilds the drawing. */
    void paste(const QModelIndex &index);
    /** With @p pasteAsNew, pasted subjects whose uuids the model holds already get fresh ones. */
    void setPasteAsNew(bool pasteAsNew) { m_pasteAsNew = pasteAsNew; }

    /** Lets the user edit the own style of the selected subject; not undoable. */
    void editStyle();
    /** Removes that style; not undoable. */
    void removeStyle();

Q_SIGNALS:
    /** Subjects were copied or cut; @p isAny says whether the buffer holds anything. */
    void copied(bool isAny);

private:
    template <typename Command>
    void insertAtSelected();
    void store(const QJsonObject &snapshot);
    void removeSubjects(const QJsonObject &snapshot, const QList<TreeItem *> &subjects);

    EditingStage m_stage;
    QJsonObject m_copy;
    bool m_pasteAsNew = false;
};
