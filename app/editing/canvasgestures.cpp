// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/canvasgestures.h>

#include <app/diagram/diagramsession.h>
#include <app/panels/treesync.h>

#include <fishbone/base/preorder.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>

#include <QContextMenuEvent>
#include <QMouseEvent>

#include <utility>

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

/** Whether a right click at @p pos is about several subjects: on one of those that are selected. */
bool CanvasGestures::isOnSelection(const QPoint &pos) const
{
    const QModelIndexList selected = m_session->selected();
    return selected.size() > 1 && selected.contains(subjectAt(pos));
}

/** The bone whose line or title is drawn at @p pos of the viewport; null for what stands at it. */
SpearItem *CanvasGestures::boneAt(const QPoint &pos) const
{
    QGraphicsItem *const item = m_editor->view()->itemAt(pos);
    const bool isTitle = qgraphicsitem_cast<TextItem *>(item);
    return qgraphicsitem_cast<SpearItem *>(isTitle ? item->parentItem() : item);
}

/** All bones that can be seen, in document order. */
QList<SpearItem *> CanvasGestures::shownBones() const
{
    QList<SpearItem *> bones;
    const auto childrenOf = [](const SpearItem &bone) {
        return bone.isVisible() ? bone.childSpears() : QList<SpearItem *>();
    };
    visitPreOrder(m_editor->headSpear(), childrenOf, [&bones](SpearItem *bone) {
        if (bone->isVisible())
            bones.append(bone);
        return true;
    });
    return bones;
}

/** Selects further bones when @p press is to do so. */
bool CanvasGestures::pick(const QMouseEvent &press)
{
    const bool isOne = press.modifiers() == Qt::ControlModifier;
    const bool isRange = press.modifiers() == Qt::ShiftModifier && m_pressed.isValid();
    SpearItem *const bone = boneAt(press.pos());
    if (!bone || press.button() != Qt::LeftButton || !(isOne || isRange))
        return false;
    const QList<SpearItem *> all = shownBones();
    const TreeItem *const from = m_session->model()->getTreeItem(m_pressed);
    const int begin = from ? int(all.indexOf(from->spear())) : -1;
    const int end = int(all.indexOf(bone));
    QList<SpearItem *> chosen;
    for (int i = 0; i < int(all.size()); ++i) {
        const bool isBetween = begin >= 0 && qMin(begin, end) <= i && i <= qMax(begin, end);
        const bool wasSelected = all.at(i)->isSelected();
        if (isRange ? isBetween : wasSelected != (i == end))
            chosen.append(all.at(i));
    }
    m_editor->selectSpears(chosen);
    if (isOne)
        m_pressed = m_editor->spearIndex(bone); // from which a range goes
    m_session->touch();
    return true;
}

bool CanvasGestures::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ContextMenu) {
        const QPoint pos = static_cast<QContextMenuEvent *>(event)->pos();
        if (!isOnSelection(pos))
            return QObject::eventFilter(watched, event);
        // Without the view, which selects the one under the mouse alone.
        m_editor->onRightClicked(m_session->model()->getTreeItem(subjectAt(pos))->spear());
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *const press = static_cast<QMouseEvent *>(event);
        if (press->button() == Qt::RightButton && isOnSelection(press->pos()))
            return true; // the menu comes by itself
        m_isPicking = pick(*press);
        if (m_isPicking)
            return true;
        // Before the view takes the selection for what is to be moved.
        if (press->button() == Qt::LeftButton && !m_editor->view()->itemAt(press->pos()))
            m_editor->scene()->clearSelection();
        m_pressed = subjectAt(press->pos());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (std::exchange(m_isPicking, false))
            return true; // as the press was
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
