// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QRect>

class DiagramSession;
class QDropEvent;
class QRubberBand;
class SubjectTree;

/**
 * Lets rows of the tree be dragged to another place of it: between two rows, or onto one, below
 * which they come last. All that is dragged moves in one step of the history.
 */
class TreeDrops : public QObject
{
    Q_OBJECT

public:
    /** Moves what @p session shows, in @p tree. */
    TreeDrops(DiagramSession *session, SubjectTree *tree, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /** Where a drop would bring subjects. */
    struct Place
    {
        QModelIndex parent; ///< of the documents' model; invalid for nowhere
        int row;
        QRect mark; ///< in the viewport
    };

    Place placeAt(const QPoint &pos) const;
    void offer(QDropEvent &event);
    QModelIndexList dragged(const QDropEvent &event) const;
    void move(const QModelIndexList &subjects, const Place &place);

    DiagramSession *m_session;
    SubjectTree *m_tree;
    QPointer<QRubberBand> m_mark; ///< lives as long as the viewport
};
