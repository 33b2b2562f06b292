// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/undo/undocommand.h>

#include <memory>

class FishModel;
class QAbstractItemModel;
class QModelIndex;
class TreeItem;

/**
 * What the commands that change one attribute of one subject have in common.
 *
 * The subject is known by its uuid and looked up again in every redo() and undo(), first in the
 * document that it was in when the command was made. The constructor gives it, and its parent, a
 * uuid when they have none. A step whose subject is not there changes nothing.
 *
 * The model is not owned; once it is gone the command does nothing any more.
 */
class FISHBONE_EXPORT AttributeCommand : public UndoCommand
{
    Q_OBJECT

public:
    ~AttributeCommand() override;

    /** The subject's uuid; TreeItem::noIdentity() when the command was made for none. */
    QString uuid() const;

protected:
    /** Remembers the subject at @p index by its uuid. The model is not owned. */
    AttributeCommand(const Name &name, QAbstractItemModel *model, const QModelIndex &index);

    /** The model, null when it is gone. */
    QAbstractItemModel *model() const;
    /** Where the subject stands now; invalid when it is not there. */
    QModelIndex subjectIndex() const;
    /** The subject; null when it is not there or the model has no nodes. */
    TreeItem *subject() const;
    /** Gives the subject, which must be there, the link @p url and has the model tell. */
    void setUrl(const QString &url);

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};

/** Changes the title through the model, which announces it. */
class FISHBONE_EXPORT ModifyName : public AttributeCommand
{
    Q_OBJECT

public:
    /** Will give the subject at @p index the title @p name. */
    ModifyName(QAbstractItemModel *model, const QModelIndex &index, const QString &name);

    void undo() override;
    void redo() override;

    /** The title that redo() gives. */
    QString newName() const { return m_newName; }
    /** The plain title before the last redo(), without the counts that a head shows. */
    QString oldName() const { return m_oldName; }

private:
    QString m_newName;
    QString m_oldName;
    bool m_isApplied = false;
};

/** Changes the link. No model signal tells of it: who pushes the command refreshes the spear. */
class FISHBONE_EXPORT ModifyLinkTo : public AttributeCommand
{
    Q_OBJECT

public:
    /** Will link the subject at @p index to @p url. */
    ModifyLinkTo(QAbstractItemModel *model, const QModelIndex &index, const QString &url);

    void undo() override;
    void redo() override;

    /** The link that redo() gives. */
    QString newUrl() const { return m_newUrl; }
    /** The link before the last redo(). */
    QString oldUrl() const { return m_oldUrl; }

private:
    QString m_newUrl;
    QString m_oldUrl;
    bool m_isApplied = false;
};

/** Removes the link. No model signal tells of it: who pushes the command refreshes the spear. */
class FISHBONE_EXPORT ModifyDelLink : public AttributeCommand
{
    Q_OBJECT

public:
    /** Will remove the link of the subject at @p index. */
    ModifyDelLink(QAbstractItemModel *model, const QModelIndex &index);

    void undo() override;
    void redo() override;

    /** The link before the last redo(). */
    QString oldUrl() const { return m_oldUrl; }

private:
    QString m_oldUrl;
    bool m_isApplied = false;
};

/** Copies the attributes of a record into the subject; undo() leaves them there. */
class FISHBONE_EXPORT EditModify : public AttributeCommand
{
    Q_OBJECT

public:
    /** @p item holds the new values. It is not owned, and has to live as long as redo() is called.
     */
    EditModify(FishModel *model, const QModelIndex &index, TreeItem *item);

    /** Does nothing: the values before are not kept. */
    void undo() override;
    /** Applies the values as FishModel::updateItem() does, without a signal. */
    void redo() override;

    /** The record with the new values; not owned. */
    TreeItem *item() const { return m_item; }

private:
    TreeItem *m_item;
};
