// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class DiagramSession;
class FishEditor;
class QPoint;
class QMouseEvent;
class SpearItem;
class TreeSync;

/**
 * What the mouse does on the canvas beside what the editor makes of it, and how far it scrolls.
 * With Ctrl a click selects a bone beside those that are selected, or no longer, with Shift all up
 * to it, in document order. A right click on one of several selected bones keeps them selected.
 */
class CanvasGestures : public QObject
{
    Q_OBJECT

public:
    CanvasGestures(DiagramSession *session, TreeSync *sync, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QModelIndex subjectAt(const QPoint &pos) const;
    void followClick();
    void updateCanvasRect();
    bool isOnSelection(const QPoint &pos) const;
    SpearItem *boneAt(const QPoint &pos) const;
    QList<SpearItem *> shownBones() const;
    bool pick(const QMouseEvent &press);

    DiagramSession *m_session;
    FishEditor *m_editor;
    TreeSync *m_sync;
    QPersistentModelIndex m_pressed; ///< the subject under the last press of a button
    bool m_isPicking = false;        ///< the press has chosen a bone beside others
};
