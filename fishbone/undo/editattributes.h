// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/undo/undocommand.h>

#include <QJsonObject>

#include <memory>

class FishInfo;
class FishModel;
class QModelIndex;
class TreeItem;

/**
 * Changes any attributes of one or several subjects.
 *
 * A change is told by the state of the subject before and after, each a node object of the diagram
 * format as stateOf() makes it. Only attributes in which the two differ are touched: redo() stores
 * those of the one state, undo() those of the other. Title, description, link, status, progress,
 * priority, type, showid, the people, the dates, the own style and whether the bone may be dragged
 * are attributes, and so is each of TreeItem::otherFields(); identity, place and children are not.
 *
 * The change may have been made before the command is pushed, as by a dialog that works on the
 * subject itself: redo() then finds it made.
 *
 * Each subject is known by its uuid and looked up again in every redo() and undo(), first in the
 * document that it was in when it was added. add() gives it, and its parent, a uuid when they have
 * none. A subject that is not there is skipped, and one that redo() did not find is left alone by
 * undo().
 *
 * All subjects have their attributes before the first of them is announced, so that an editor lays
 * out once. Then the model announces each of them by dataChanged() with all columns of its row, and
 * the documents concerned are marked as modified.
 *
 * The model is not owned; once it is gone the command does nothing any more.
 */
class FISHBONE_EXPORT EditAttributes : public UndoCommand
{
    Q_OBJECT

public:
    /** Makes a command that changes no subject yet. */
    explicit EditAttributes(FishModel *model);
    /** As add() of a single subject. */
    EditAttributes(FishModel *model, const QModelIndex &index, const QJsonObject &before,
                   const QJsonObject &after);
    ~EditAttributes() override;

    /** The attributes of @p subject, without anything that is below it. Linear in their number. */
    static QJsonObject stateOf(const TreeItem &subject);

    /**
     * Will change the subject at @p index as well. False, with nothing added, when it is no subject
     * of the model and when the states do not differ. To be called before redo().
     */
    bool add(const QModelIndex &index, const QJsonObject &before, const QJsonObject &after);
    /**
     * Will replace FishInfo::view() of @p document by @p view, so that it comes and goes with the
     * history as attributes do. False as add() is, for a document without a head, too. Linear in
     * the number of the head's attributes.
     */
    bool addView(const FishInfo &document, const QJsonObject &view);
    /** The number of subjects that change. */
    int count() const;

    void undo() override;
    void redo() override;

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};
