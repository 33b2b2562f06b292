// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QStringList>

#include <fishbone/editor/editingstage.h>

class QGraphicsItem;
class QMimeData;
class TreeItem;

/** Moves subjects to another place: with the mouse, and by drops. */
class SubjectMoves : public QObject
{
    Q_OBJECT

public:
    /** How a drop gets here. */
    enum class Came { AtOnce, Queued };

    explicit SubjectMoves(const EditingStage &stage);

    /** Moves the subjects of @p items to @p row below @p target; a refusal puts the items back. */
    void move(const QList<QGraphicsItem *> &items, const QModelIndex &target, int row);
    /** Moves the subject that @p data carries to @p row below @p target. Not undoable. */
    void drop(const QMimeData *data, const QModelIndex &target, int row, Came came);
    /** The subject that a drag of @p data, which may be null, carries; null when it carries none
     * of the model. */
    TreeItem *carriedBy(const QMimeData *data) const;

Q_SIGNALS:
    /** The subjects of these uuids have moved below that of @p parent, with the mouse. */
    void moved(const QStringList &uuids, const QString &parent);
    /** Likewise, by a drop. */
    void dropped(const QStringList &uuids, const QString &parent);

private:
    bool isRefused(const QGraphicsItem *item, const QModelIndex &target) const;
    bool isWithin(const QModelIndex &target, const TreeItem *subject) const;
    QModelIndex livingTarget(const QModelIndex &index, Came came) const;
    void report(void (SubjectMoves::*tell)(const QStringList &, const QString &),
                const QStringList &uuids, const QModelIndex &parent);

    EditingStage m_stage;
};
