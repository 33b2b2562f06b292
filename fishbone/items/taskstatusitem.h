// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/svgitem.h>
#include <fishbone/items/taskstatusinfo.h>

class QMenu;
class QSignalMapper;
class SpearItem;

/** The icon of a subject's task status and progress. */
class FISHBONE_EXPORT TaskStatusItem : public SvgItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 6 };

    int type() const override { return Type; }

    /** An icon for @p status and @p progress (percent), a child item of @p spear, which owns it. */
    TaskStatusItem(SpearItem *spear, TaskStatus status, int progress);

    /** The status shown. */
    TaskStatus status() const { return m_info.status(); }
    /** The progress shown, in percent. */
    int progress() const { return m_info.progress(); }

    /** Shows @p status; a value that is no status changes nothing. */
    void setStatus(TaskStatus status);
    /** Shows @p progress (percent); a value outside 0 to 100 changes nothing. */
    void setProgress(int progress);
    /** Shows a subject's stored numbers, the progress in percent, as they are: a status that is
     * none shows no icon. */
    void setTask(int status, int progress);

    /** Brings the picture in line with status and progress; "unknown" shows none. */
    void updateStatusIcon();

    /** An extension point: adds nothing to the menu. Neither argument is owned; both may be null.
     */
    void createPopMenu(QMenu *menu, QSignalMapper *mapper);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    TaskStatusInfo m_info;
    QString m_icon; ///< the picture of m_info
};
