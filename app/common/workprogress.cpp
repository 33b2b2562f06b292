// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/workprogress.h>

#include <QSettings>

namespace {

/** Milliseconds in which nothing is shown; a setting, for whoever wants to see it sooner. */
int patience()
{
    constexpr int usual = 1000;
    return qMax(0, QSettings().value(QStringLiteral("progressAfterMilliseconds"), usual).toInt());
}

constexpr int betweenReports = 40; ///< milliseconds; more often nobody sees it

} // namespace

WorkProgress::WorkProgress(const QString &text, QWidget *window)
    : m_dialog(text, tr("Cancel"), 0, 1, window)
{
    m_dialog.setObjectName(QStringLiteral("workProgress"));
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(patience());
    m_dialog.setAutoReset(false); // the last step may take its time, too
    m_dialog.setValue(0);
    // However it is closed, it is not to go on unseen.
    QObject::connect(&m_dialog, &QDialog::rejected, &m_dialog, &QProgressDialog::cancel);
}

bool WorkProgress::report(int done, int total)
{
    if (m_sinceReport.isValid() && m_sinceReport.elapsed() < betweenReports && done < total)
        return !m_dialog.wasCanceled();
    m_sinceReport.start();
    m_dialog.setMaximum(total);
    m_dialog.setValue(done);
    return !m_dialog.wasCanceled();
}
