// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QString>

/** What state a task is in; the number is what a subject stores and a document carries. */
enum TaskStatus : int {
    tsUnknown = 0,       ///< nothing is known: no icon
    tsCancel = 1,        ///< cancelled
    tsFinish = 2,        ///< finished in time
    tsFinishDelay = 3,   ///< finished late
    tsPostpone = 4,      ///< postponed
    tsRunning = 5,       ///< under way; the icon follows the progress
    tsWaitting = 6,      ///< waiting to begin
    tsWaittingAgree = 7, ///< waiting for approval
};

/**
 * Names the status icon of a task.
 *
 * A plain value: the status and the progress of a task, and the identifier that follows from them.
 * The identifier is also the name of the icon's file. A status may hold any number, since it comes
 * out of a document; numbers without a meaning give the identifier "unknown".
 */
class FISHBONE_EXPORT TaskStatusInfo
{
public:
    /** Takes both values unchecked and derives the identifier; @p progress is in percent. */
    TaskStatusInfo(TaskStatus status, int progress);

    /** Takes the identifier as it is; the status is tsUnknown and the progress 0 whatever it says.
     */
    explicit TaskStatusInfo(const QString &identifier);

    /** Returns the identifier, "unknown" for instance. */
    QString identifier() const { return m_identifier; }

    /** Returns the status, which need not be a known one. */
    TaskStatus status() const { return m_status; }

    /** Returns the progress in percent, which need not be within 0 and 100. */
    int progress() const { return m_progress; }

    /** Returns whether the status is one of the enumeration. */
    bool isStatusVaild() const;

    /** Changes the status and the identifier; a status that is not of the enumeration is ignored.
     */
    void setStatus(TaskStatus status);

    /** Changes the progress (percent) and the identifier; one outside 0 to 100 is ignored. */
    void setProgress(int progress);

    /** Derives the identifier from the status and the progress again. */
    void updateIdentifier();

    /**
     * Returns the identifier of a status, "unknown" when it is not of the enumeration.
     *
     * The progress counts for a running task only and is rounded up to the next ten. There is no
     * icon for a complete one: above 90 percent it shows as waiting for approval.
     */
    static QString identifierByStatusAndProgress(TaskStatus status, int progress);

    /** Returns the resource path of the icon, empty when the identifier is "unknown". */
    QString iconPath() const;

private:
    QString m_identifier;
    TaskStatus m_status = tsUnknown;
    int m_progress = 0;
};
