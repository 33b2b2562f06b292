// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/taskstatusinfo.h>

namespace {

/** Whether @p value lies within 0 and @p last, told by one comparison without sign. */
constexpr bool isWithin(int value, unsigned last)
{
    return static_cast<unsigned>(value) <= last;
}

constexpr unsigned lastStatus = tsWaittingAgree;
constexpr unsigned fullProgress = 100;

QString runningIdentifier(int progress)
{
    if (progress > 90)
        return QStringLiteral("waitting_agree");
    const int roundedUp = progress < 1 ? 0 : (progress + 9) / 10 * 10;
    return QStringLiteral("running_progress_%1").arg(roundedUp);
}

} // namespace

TaskStatusInfo::TaskStatusInfo(TaskStatus status, int progress)
    : m_identifier(identifierByStatusAndProgress(status, progress))
    , m_status(status)
    , m_progress(progress)
{
}

TaskStatusInfo::TaskStatusInfo(const QString &identifier)
    : m_identifier(identifier)
{
}

bool TaskStatusInfo::isStatusVaild() const
{
    return isWithin(m_status, lastStatus);
}

void TaskStatusInfo::setStatus(TaskStatus status)
{
    if (!isWithin(status, lastStatus))
        return;
    m_status = status;
    updateIdentifier();
}

void TaskStatusInfo::setProgress(int progress)
{
    if (!isWithin(progress, fullProgress))
        return;
    m_progress = progress;
    updateIdentifier();
}

void TaskStatusInfo::updateIdentifier()
{
    m_identifier = identifierByStatusAndProgress(m_status, m_progress);
}

QString TaskStatusInfo::identifierByStatusAndProgress(TaskStatus status, int progress)
{
    switch (status) {
    case tsUnknown:
        break;
    case tsCancel:
        return QStringLiteral("cancel");
    case tsFinish:
        return QStringLiteral("finish");
    case tsFinishDelay:
        return QStringLiteral("finish_delay");
    case tsPostpone:
        return QStringLiteral("postpone");
    case tsRunning:
        return runningIdentifier(progress);
    case tsWaitting:
        return QStringLiteral("waitting");
    case tsWaittingAgree:
        return QStringLiteral("waitting_agree");
    }
    return QStringLiteral("unknown");
}

QString TaskStatusInfo::iconPath() const
{
    if (m_identifier == QLatin1String("unknown"))
        return {};
    return QLatin1String(":/fishboneDiagram/status/") + m_identifier + QLatin1String(".svg");
}
