// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QModelIndex>
#include <QPointer>
#include <QString>

#include <memory>

class FishEditor;
class FishInfo;
class FishModel;
class TreeItem;
class UndoCommand;

/**
 * A subject as a script holds it: a handle that may outlive the subject, its document and its
 * model.
 *
 * Who asks a handle whose subject is gone, or is out of its document because a step was undone,
 * gets nothing, and no change is made; isThere() tells. A subject that comes back by undo is there
 * again.
 *
 * Every change is a command. Where an editor shows the document it is a step of that editor's
 * history, elsewhere it cannot be undone. Either way views are told and the document is marked as
 * modified.
 */
class ScriptSubject
{
public:
    /** A handle of nothing. */
    ScriptSubject() = default;
    /** A handle of @p item, a node of @p model; of nothing when either is null. */
    ScriptSubject(FishModel *model, TreeItem *item);

    /** Whether the subject lives and is in its model. */
    bool isThere() const;
    /** Its attributes, an object of the diagram format as text; empty when it is not there. */
    QString state() const;
    /** Its uuid, which it is given when it has none; empty when it is not there. */
    QString identity() const;
    /** The number of subjects right below; 0 when it is not there. */
    int childCount() const;
    /** The subject in @p row below, a handle of nothing when there is none. */
    ScriptSubject child(int row) const;
    /** The subject above, a handle of nothing for a head. */
    ScriptSubject parent() const;
    /** The row below its parent, for a head that of its document; -1 when it is not there. */
    int row() const;
    /** Its index in the model, invalid when it is not there. */
    QModelIndex index() const;
    /** Whether both are handles of one subject, also when that is gone. */
    bool isSame(const ScriptSubject &other) const;
    /** A number that equals that of every handle of the same subject. */
    quint64 key() const;

    /**
     * Stores the attributes in @p json, an object of the diagram format, and leaves the others as
     * they are; null removes a field that is none of the format's. False when it is not there;
     * attributes that are the same already are no step.
     */
    bool edit(const QString &json) const;
    /**
     * Inserts a subject with the attributes of @p json in @p row below this one, at the end when
     * there is no such row. A handle of nothing when that cannot be.
     */
    ScriptSubject insert(int row, const QString &json) const;
    /** Deletes the subject with all below it; a head with its document. */
    bool remove() const;
    /** Moves the subject so that it stands in @p row below @p target. False below itself. */
    bool moveTo(const ScriptSubject &target, int row) const;

    /** The node, null when it is not there. For the other classes of this folder. */
    TreeItem *item() const;
    /** The model, null when it is gone. For the other classes of this folder. */
    FishModel *model() const { return m_model; }
    /** The document that holds the subject, null when it is not there. Likewise. */
    FishInfo *document() const;

private:
    bool run(std::unique_ptr<UndoCommand> command) const;
    FishEditor *editor() const;

    QPointer<FishModel> m_model;
    std::shared_ptr<TreeItem *> m_cell; // what nodes share with whoever outlives them
};
