// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/documentreport.h>

#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>

#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace {

bool hasUuid(const TreeItem &subject)
{
    return TreeItem::isIdentity(subject.uuid());
}

/** Whether @p status is a known one, or none. */
bool isStatus(int status)
{
    return status == TreeItem::none || TaskStatusInfo(TaskStatus(status), 0).isStatusVaild();
}

/** @p title in one short line. */
QString shortened(const QString &title)
{
    constexpr int longest = 60;
    const QString line = title.left(2 * longest).simplified();
    return line.size() > longest ? line.left(longest) + QChar(u'\u2026') : line;
}

} // namespace

DocumentReport::DocumentReport(const TreeItem &head)
    : m_title(head.title())
{
    OutlineWalk::walk(head, [this](const TreeItem &subject, int level) {
        m_path.resize(std::size_t(level));
        if (level > 0)
            m_path.back() = subject.index() + 1;
        visit(subject, level > 0 ? subject.parent() : nullptr);
    });
}

void DocumentReport::visit(const TreeItem &subject, const TreeItem *parent)
{
    ++m_subjects;
    m_levels = std::max(m_levels, int(m_path.size()) + 1);
    m_mainBones += m_path.size() == 1 ? 1 : 0;
    m_links += subject.url().isEmpty() ? 0 : 1;
    m_styles += subject.spearStyle() ? 1 : 0;
    checkIdentity(subject, parent);
    checkTask(subject);
}

void DocumentReport::checkIdentity(const TreeItem &subject, const TreeItem *parent)
{
    if (!hasUuid(subject))
        find(subject, tr("it has no uuid"));
    else if (m_uuids.contains(subject.uuid()))
        find(subject, tr("another subject has the same uuid %1").arg(subject.uuid()));
    m_uuids.insert(subject.uuid());
    if (!parent && subject.isHaveParentTask())
        find(subject, tr("it is the head and has the pid %1").arg(subject.pid()));
    if (parent && !subject.isHaveParentTask())
        find(subject, tr("it has no pid"));
    else if (parent && subject.pid() != parent->uuid())
        find(subject, tr("its pid %1 does not name its parent").arg(subject.pid()));
}

void DocumentReport::checkTask(const TreeItem &subject)
{
    if (subject.title().trimmed().isEmpty())
        find(subject, tr("it has no title"));
    if (!isStatus(subject.status()))
        find(subject, tr("its status %1 is unknown").arg(subject.status()));
    if (subject.progress() < 0 || subject.progress() > 100)
        find(subject, tr("its progress %1 is not within 0 and 100").arg(subject.progress()));
    if (subject.createDate() != 0 && subject.planEndDate() != 0 &&
        subject.planEndDate() < subject.createDate())
        find(subject, tr("it is to end before it was created"));
    if (!subject.url().isEmpty() && !QUrl(subject.url()).isValid())
        find(subject, tr("its link %1 is no URL").arg(shortened(subject.url())));
}

void DocumentReport::find(const TreeItem &subject, const QString &what)
{
    m_findings.append({place(), subject.title(), what});
}

QString DocumentReport::Finding::text() const
{
    return QStringLiteral("%1 \"%2\": %3")
        .arg(place.isEmpty() ? tr("head") : place, shortened(title), reason);
}

/** The place of the visited subject, "2.1" for the first one below the second main bone. */
QString DocumentReport::place() const
{
    QStringList numbers;
    for (const int number : m_path)
        numbers.append(QString::number(number));
    return numbers.join(QLatin1Char('.'));
}

QString DocumentReport::text() const
{
    QStringList lines{
        tr("Title: %1").arg(shortened(m_title)),
        tr("Subjects: %1").arg(m_subjects),
        tr("Main bones: %1").arg(m_mainBones),
        tr("Levels: %1").arg(m_levels),
        tr("Links: %1").arg(m_links),
        tr("Own styles: %1").arg(m_styles),
    };
    if (m_findings.isEmpty()) {
        lines.append(tr("Nothing is off."));
    } else {
        lines.append(tr("Off: %1").arg(m_findings.size()));
        for (const Finding &finding : m_findings)
            lines.append(QLatin1String("  ") + finding.text());
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
