// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/undo/undocommand.h>

#include <QList>
#include <QModelIndex>
#include <QStringList>

#include <memory>

class FishInfo;
class FishModel;
class QAbstractItemModel;
class QJsonObject;
class TreeItem;

/**
 * What the insertions of one new subject have in common.
 *
 * A command keeps neither index nor row: it knows subjects by uuid and looks them up again each
 * time, first in the document that it was made for. The constructor gives the subject it names, and
 * that one's parent, a uuid when they have none.
 *
 * undo() takes the new subject out and keeps it, with whatever was put below it meanwhile; a new
 * diagram is kept with its document. redo() puts it back. What is out of the model when the command
 * dies is deleted with it.
 *
 * Spears follow where the parent has one: the new subject gets a spear, in row order, and loses it
 * when it is taken out. Laying out is up to the editor.
 *
 * A listener may remove the new subject as soon as it is there; undo() then finds nothing to do. A
 * step that comes while the model announces another change does nothing, and neither does the step
 * back.
 *
 * The model is not owned; once it is gone the command does nothing any more.
 */
class FISHBONE_EXPORT InsertCommand : public UndoCommand
{
    Q_OBJECT

public:
    ~InsertCommand() override;

    void undo() override;
    void redo() override;

    /** The uuid of the subject that the place is told by; TreeItem::noIdentity() for none. */
    QString uuid() const;
    /** The uuid of the new subject, the same in every redo(); empty before the first one. */
    QString newUuid() const;

protected:
    /** Where a subject goes: a row below a parent, which is invalid for the top level. */
    struct Place
    {
        QModelIndex parent; ///< the subject above
        int row;            ///< the row below it
    };
    struct Private;

    /** Remembers the subject at @p reference, which tells the place, by its uuid. */
    InsertCommand(const Name &name, QAbstractItemModel *model, const QModelIndex &reference);

    /** Where the subject goes when @p reference, which may be invalid, is the subject named. */
    virtual Place place(const QModelIndex &reference) const = 0;
    /** Puts the subject there; false when it cannot stand there. */
    virtual bool insertAt(const Place &place);
    /** What redo() does, when it has anything to do. */
    virtual void insert();
    /** What undo() does, when it has anything to do. */
    virtual void remove();

    const std::unique_ptr<Private> m_d; ///< what the commands of this file share
};

/** Appends a new child; a new diagram when there is no such parent. */
class FISHBONE_EXPORT InsertChild : public InsertCommand
{
    Q_OBJECT

public:
    /** The new subject goes below @p index. */
    InsertChild(QAbstractItemModel *model, const QModelIndex &index);

    /**
     * Inserts @p item, with all below it, in place of a new subject. To be called before redo().
     *
     * The command takes over an item that stands in no tree, and owns it whenever it is out of the
     * tree: undo() does not delete it, the end of the command does.
     */
    void setTreeItem(TreeItem *item);
    /** The item given to setTreeItem(); null without one and once it is known to be lost. */
    TreeItem *treeItem() const;

protected:
    Place place(const QModelIndex &reference) const override;
    bool insertAt(const Place &place) override;
};

/** Inserts a new subject behind another one; behind a head, a new diagram. */
class FISHBONE_EXPORT InsertBack : public InsertCommand
{
    Q_OBJECT

public:
    /** The new subject goes behind @p index. */
    InsertBack(QAbstractItemModel *model, const QModelIndex &index);

protected:
    Place place(const QModelIndex &reference) const override;
};

/** Inserts a new subject in front of another one; in front of a head, a new diagram. */
class FISHBONE_EXPORT InsertFront : public InsertCommand
{
    Q_OBJECT

public:
    /** The new subject goes in front of @p index. */
    InsertFront(QAbstractItemModel *model, const QModelIndex &index);

protected:
    Place place(const QModelIndex &reference) const override;
};

/**
 * Inserts a new subject in the place of another one, which becomes its first child.
 *
 * Above a head the document stays: the new subject becomes its head. undo() gives the other one its
 * place and its pid back.
 */
class FISHBONE_EXPORT InsertParent : public InsertCommand
{
    Q_OBJECT

public:
    /** The new subject goes above @p index. */
    InsertParent(QAbstractItemModel *model, const QModelIndex &index);

protected:
    Place place(const QModelIndex &reference) const override;
    void insert() override;
    void remove() override;

private:
    void insertAbove(FishModel &model, TreeItem *subject);
    void insertAboveHead(FishModel &model, TreeItem *head);
    bool removeAbove(FishModel &model, TreeItem *subject, TreeItem *inserted);
    bool removeAboveHead(FishModel &model, TreeItem *subject, TreeItem *inserted);
    void insertElsewhere();
    void removeElsewhere();

    QString m_pid; // of the subject, before the insertion
};

/** Appends a new diagram. */
class FISHBONE_EXPORT InsertFree : public InsertCommand
{
    Q_OBJECT

public:
    /** The new diagram goes behind all others. */
    explicit InsertFree(QAbstractItemModel *model);

protected:
    Place place(const QModelIndex &reference) const override;
};

/**
 * Deletes the subjects of a snapshot with all below them and with their spears.
 *
 * A snapshot is a node object of the diagram format, or an object whose "children" lists node
 * objects; only their "uuid" counts here. undo() puts back what redo() took out, unchanged and
 * exactly where it stood. A head takes its document with it, and both come back as they were.
 *
 * Finding the subjects is linear in the number of nodes of the model, however many they are; each
 * that is found costs a step for each level above it. The model is not owned; once it is gone the
 * command does nothing any more.
 */
class FISHBONE_EXPORT EditDelete : public UndoCommand
{
    Q_OBJECT

public:
    /**
     * Deletes the subjects that @p objects names. @p subjects are the very ones that the snapshot
     * was taken of, in its order, where they are known: the ones meant among several of one uuid,
     * and found without a search.
     */
    EditDelete(FishModel *model, const QJsonObject &objects,
               const QList<TreeItem *> &subjects = {});
    /** Deletes the subject at @p index. */
    EditDelete(FishModel *model, const QModelIndex &index);
    ~EditDelete() override;

    /** Replaces model and snapshot. Not between redo() and undo(). */
    void init(FishModel *model, const QJsonObject &objects);
    /**
     * Where the subjects of the snapshot are looked for first; documents may share uuids. The
     * document is not owned, and null for none. Looks them up anew, which is linear in the number
     * of nodes of the model at most.
     */
    void setDocument(FishInfo *document);

    void undo() override;
    void redo() override;

    /** The snapshot. */
    QJsonObject objects() const;
    /**
     * Where the subjects stood when redo() came to them, in its order; -1 for one not found and for
     * one below another of them, which goes with that one.
     */
    QList<int> rows() const;

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};

/**
 * Appends copies of the subjects of a snapshot to a subject.
 *
 * The copies keep the uuids of the snapshot, and their descendants the order that
 * FishModel::read() gives them at the place of the copy. undo() takes the copies out, never a
 * subject with the same uuid that was there before, and redo() puts them back.
 *
 * Finding the target is linear in the number of nodes of the model at most. The model is not owned;
 * once it is gone the command does nothing any more.
 */
class FISHBONE_EXPORT EditPaste : public UndoCommand
{
    Q_OBJECT

public:
    /**
     * Will add copies of the subjects of @p objects, a snapshot, below @p target. Linear in the
     * number of subjects of the snapshot.
     */
    EditPaste(FishModel *model, const QModelIndex &target, const QJsonObject &objects);
    ~EditPaste() override;

    /**
     * Whether the copies become subjects of their own: a uuid that the model has already is
     * replaced by a new one, the pids of the children follow, and descendants keep their order. Off
     * at first. To be called before redo().
     */
    void setPasteAsNew(bool pasteAsNew);

    void undo() override;
    void redo() override;

    /** The snapshot. */
    QJsonObject objects() const;
    /** The uuid of the subject that the copies go below; TreeItem::noIdentity() for none. */
    QString targetUuid() const;
    /** The uuids of the copies that the last redo() added, the newest first. */
    QStringList pastedUuids() const;

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};

/**
 * Moves the subjects of a snapshot below another subject, each to the same row.
 *
 * Without a target they go to the top level, as heads of new documents. A head that moves below a
 * subject leaves its document to the command; undo() brings the same document back. undo() puts
 * every subject back where it stood, with its pid. A subject below another one of the snapshot goes
 * with that one.
 *
 * Spears move along. One whose subject leaves the drawing is deleted, and a bone gets the spears of
 * all its children when one moves in.
 *
 * Finding the subjects is linear in the number of nodes of the model, however many they are; each
 * that is found costs a step for each level above it. The model is not owned; once it is gone the
 * command does nothing any more.
 */
class FISHBONE_EXPORT EditMove : public UndoCommand
{
    Q_OBJECT

public:
    /**
     * Moves the subjects that @p objects names to @p row below @p target. @p subjects are the very
     * ones that the snapshot was taken of, in its order, where they are known: the ones meant among
     * several of one uuid, and found without a search. Looks the others up, which is linear
     * in the number of nodes of the model at most.
     */
    EditMove(FishModel *model, const QModelIndex &target, int row, const QJsonObject &objects,
             const QList<TreeItem *> &subjects = {});
    ~EditMove() override;

    /**
     * Where the subjects are looked for first; the target's document unless set. It is not owned,
     * and null for none. Looks them up anew, which is linear in the number of nodes of the model at
     * most.
     */
    void setDocument(FishInfo *document);

    void undo() override;
    void redo() override;

    /** The snapshot. */
    QJsonObject objects() const;
    /** The uuid of the new parent; TreeItem::noIdentity() for none. */
    QString targetUuid() const;
    /** The row that the subjects move to. */
    int row() const;
    /**
     * Where the subjects stood when redo() came to them, in its order; -1 for one not found and for
     * one below another of them, which goes with that one.
     */
    QList<int> sourceRows() const;

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};
