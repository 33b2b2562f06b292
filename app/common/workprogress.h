// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

/**
 * Says how far a piece of work has come, with a button that cancels it, when it takes more than a
 * second. The work goes on in the thread of the window, which takes no other input meanwhile.
 */
class WorkProgress
{
    Q_DISABLE_COPY(WorkProgress)

public:
    /** Says @p text over @p window. */
    WorkProgress(const QString &text, QWidget *window);

    /** To be told often: @p done of @p total steps are done. False once the user has cancelled. */
    bool report(int done, int total);

private:
    QProgressDialog m_dialog;
    QElapsedTimer m_sinceReport;
};
