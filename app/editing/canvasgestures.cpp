// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/canvasgestures.h>

#include <app/diagram/diagramsession.h>
#include <app/panels/treesync.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/spearitem.h>

#include <QMouseEvent>

CanvasGestures::CanvasGestures(DiagramSession *session, TreeSync *sync, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_editor(session->editor())
    , m_sync(sync)
{
    m_editor->view()->viewport()->installEventFilter(this);
    connect(session, &DiagramSession::stateChanged, this, &CanvasGestures::updateCanvasRect);
}

/** Keeps what can be scrolled to as large as the drawing is now, and a little free space. */
void CanvasGestures::updateCanvasRect()
{
    constexpr double margin = 20;
    m_editor->view()->setSceneRect(
        PictureExport::visibleRect(*m_editor->scene()).adjusted(-margin, -margin, margin, margin));
}

/** The subject whose bone, or what stands at it, is drawn at @p pos of the viewport. */
QModelIndex CanvasGestures::subjectAt(const QPoint &pos) const
{
    QGraphicsItem *item = m_editor->view()->itemAt(pos);
    while (item && !qgraphicsitem_cast<SpearItem *>(item))
        item = item->parentItem();
    return m_editor->spearIndex(qgraphicsitem_cast<SpearItem *>(item));
}

bool CanvasGestures::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *const press = static_cast<QMouseEvent *>(event);
        // Before the view takes the selection for what is to be moved.
        if (press->button() == Qt::LeftButton && !m_editor->view()->itemAt(press->pos()))
            m_editor->scene()->clearSelection();
        m_pressed = subjectAt(press->pos());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        // Once the view is through with the click, which may have expanded a bone.
        QMetaObject::invokeMethod(this, &CanvasGestures::followClick, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void CanvasGestures::followClick()
{
    m_sync->followBone(m_pressed);
    // A view that is scrolled by hand deselects everything after a click on a button beside its
    // bone.
    if (m_pressed.isValid() && !m_editor->hasSelection())
        m_session->select(m_pressed);
    m_session->touch();
}
