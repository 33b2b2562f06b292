// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class DiagramSession;
class FishEditor;
class QPoint;
class TreeSync;

/** What the mouse does on the canvas beside what the editor makes of it, and how far it scrolls. */
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

    DiagramSession *m_session;
    FishEditor *m_editor;
    TreeSync *m_sync;
    QPersistentModelIndex m_pressed; ///< the subject under the last press of a button
};
