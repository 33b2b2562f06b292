// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/taskstatusitem.h>

#include <QGraphicsSceneMouseEvent>

#include <fishbone/items/spearitem.h>

TaskStatusItem::TaskStatusItem(SpearItem *spear, TaskStatus status, int progress)
    : SvgItem(QString(), spear)
    , m_info(status, progress)
{
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    updateStatusIcon();
}

void TaskStatusItem::setStatus(TaskStatus status)
{
    m_info.setStatus(status);
    updateStatusIcon();
}

void TaskStatusItem::setProgress(int progress)
{
    m_info.setProgress(progress);
    updateStatusIcon();
}

void TaskStatusItem::setTask(int status, int progress)
{
    if (status != m_info.status() || progress != m_info.progress())
        m_info = TaskStatusInfo(static_cast<TaskStatus>(status), progress);
    else if (m_icon.isSharedWith(shownFile()) && (showsPicture() || m_icon.isEmpty()))
        return; // the layout comes here for every bone
    updateStatusIcon();
}

void TaskStatusItem::updateStatusIcon()
{
    m_icon = m_info.iconPath();
    setSvgFile(m_icon);
}

void TaskStatusItem::createPopMenu(QMenu *menu, QSignalMapper *mapper)
{
    Q_UNUSED(menu)
    Q_UNUSED(mapper)
}

void TaskStatusItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->ignore();
}
