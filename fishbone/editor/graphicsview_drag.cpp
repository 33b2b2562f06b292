// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of GraphicsView that takes drags from other views.

#include <fishbone/editor/graphicsview.h>

#include <memory>
#include <utility>

#include <QDebug>
#include <QDragEnterEvent>
#include <QMimeData>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview_p.h>
#include <fishbone/items/spearitem.h>

namespace {
std::unique_ptr<QMimeData> copyOf(const QMimeData &data)
{
    auto copy = std::make_unique<QMimeData>();
    const QStringList formats = data.formats();
    for (const QString &format : formats)
        copy->setData(format, data.data(format));
    return copy;
}

} // namespace

void GraphicsView::dragEnterEvent(QDragEnterEvent *event)
{
    unmarkTarget();
    m_d->dropRow = 0;
    event->acceptProposedAction();
}

void GraphicsView::dragMoveEvent(QDragMoveEvent *event)
{
    const TreeItem *const dragged = m_d->editor->treeItemFromMimeData(event->mimeData());
    if (!dragged) {
        unmarkTarget();
        event->ignore();
        return;
    }
    SpearItem *const spear = topmostSpearAround(event->pos());
    if (!spear) {
        unmarkTarget();
        event->acceptProposedAction();
        return;
    }
    const TreeItem *const subject = spear->treeItem();
    if (!subject || subject == dragged || dragged->isAncestorOf(subject)) {
        unmarkTarget();
        event->ignore();
        return;
    }
    markTarget(spear, event->pos(), dragged->spear());
    event->acceptProposedAction();
}

void GraphicsView::dragLeaveEvent(QDragLeaveEvent *event)
{
    event->accept();
}

void GraphicsView::dropEvent(QDropEvent *event)
{
    qDebug() << "GraphicsView::dropEvent";
    event->acceptProposedAction();
    SpearItem *const target = m_d->linkedSpear.get();
    if (!target)
        return;
    const int row = std::exchange(m_d->dropRow, 0);
    unmarkTarget();
    QMimeData *const payload = copyOf(*event->mimeData()).release();
    Q_EMIT dropTo(payload, m_d->editor->spearIndex(target), row);
    // Posted behind the calls of queued receivers, so that they find it alive; also when somebody
    // who waits has all deletions carried out before anything else, as the end of a drag may.
    QMetaObject::invokeMethod(
        payload, [payload] { payload->deleteLater(); }, Qt::QueuedConnection);
}
