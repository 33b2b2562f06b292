// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xmindtopics.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/taskvalues.h>

#include <QFileInfo>

#include <algorithm>

namespace {

using Kind = ExchangeReport::Kind;

const QLatin1String priorityMarker("priority-");

/** What a marker says about a task. */
struct TaskMarker
{
    QLatin1String name;
    int status;
    int progress;
};

const TaskMarker taskMarkers[] = {
    {QLatin1String("task-start"), TaskStatuses::waiting, 0},
    {QLatin1String("task-oct"), TaskStatuses::running, 12},
    {QLatin1String("task-quarter"), TaskStatuses::running, 25},
    {QLatin1String("task-3oct"), TaskStatuses::running, 37},
    {QLatin1String("task-half"), TaskStatuses::running, 50},
    {QLatin1String("task-5oct"), TaskStatuses::running, 62},
    {QLatin1String("task-3quar"), TaskStatuses::running, 75},
    {QLatin1String("task-7oct"), TaskStatuses::running, 87},
    {QLatin1String("task-done"), TaskStatuses::finished, 100},
    {QLatin1String("task-pause"), TaskStatuses::postponed, -1},
};

} // namespace

bool XmindTopics::open(const QString &id, qint64 line)
{
    TreeItem *const subject = m_tree.add(depth(), QString(), line);
    if (!subject)
        return false;
    if (!id.isEmpty() && !id.startsWith(XmindNames::noUuid)) {
        subject->setUuid(id);
        m_byId.insert(id, subject);
    }
    m_open.push_back({subject, line, id, {}, {}, {}});
    return true;
}

void XmindTopics::close()
{
    const Topic topic = m_open.back();
    m_open.pop_back();
    TreeItem &subject = *topic.subject;
    if (!topic.labels.isEmpty())
        m_tree.addNamedDetail(subject, DiagramExchange::tr("Labels"),
                              topic.labels.join(QLatin1String(", ")), topic.line);
    if (!topic.markers.isEmpty())
        m_tree.addNamedDetail(subject, DiagramExchange::tr("Icons"),
                              topic.markers.join(QLatin1String(", ")), topic.line);
    for (const auto &[key, value] : topic.own) {
        const QVector<SubjectAttributes::Attribute> &all = SubjectAttributes::all();
        const auto attribute = std::find_if(
            all.cbegin(), all.cend(), [&field = key](const auto &a) { return field == a.key; });
        if (attribute == all.cend() || !attribute->setText(subject, value))
            m_tree.addNamedDetail(subject, key, value, topic.line);
    }
}

void XmindTopics::setTitle(const QString &title)
{
    m_open.back().subject->setTitle(title);
}

void XmindTopics::setLink(const QString &link)
{
    if (!link.isEmpty())
        m_open.back().subject->setUrl(link);
}

void XmindTopics::setNote(const QString &note)
{
    if (!note.isEmpty())
        m_open.back().subject->setDetail(note);
}

void XmindTopics::setNoteIfNone(const QString &note)
{
    if (m_open.back().subject->detail().isEmpty())
        setNote(note);
}

void XmindTopics::addMarker(const QString &marker)
{
    if (!marker.isEmpty() && !applyMarker(marker))
        m_open.back().markers.append(marker);
}

bool XmindTopics::applyMarker(const QString &marker)
{
    Topic &topic = m_open.back();
    bool isKnown = false;
    if (marker.startsWith(priorityMarker)) {
        const int priority = marker.mid(priorityMarker.size()).toInt(&isKnown);
        if (isKnown)
            topic.subject->setPriority(priority);
    }
    for (const TaskMarker &task : taskMarkers) {
        if (marker != task.name)
            continue;
        isKnown = true;
        topic.subject->setStatus(task.status);
        if (task.progress >= 0)
            topic.subject->setProgress(task.progress);
    }
    if (isKnown && topic.own.empty())
        m_tree.note(Kind::ReadAs, DiagramExchange::tr("the icon \"%1\"").arg(marker), topic.line);
    return isKnown;
}

void XmindTopics::addLabel(const QString &label)
{
    if (!label.isEmpty())
        m_open.back().labels.append(label);
}

void XmindTopics::addImage(const QString &source)
{
    if (source.isEmpty())
        return;
    Topic &topic = m_open.back();
    m_tree.addContent(*topic.subject, {}, {source}, topic.line);
    if (topic.subject->title().isEmpty())
        topic.subject->setTitle(QFileInfo(source).fileName());
}

void XmindTopics::addDetail(const QString &name, const QString &value)
{
    m_tree.addNamedDetail(*m_open.back().subject, name, value.trimmed(), m_open.back().line);
}

void XmindTopics::setOwn(const QString &key, const QString &value)
{
    m_open.back().own.emplace_back(key, value);
}

void XmindTopics::setTaskValue(const QString &name, const QString &value)
{
    TreeItem &subject = *m_open.back().subject;
    const std::optional<qint64> date = TaskValues::date(value);
    const std::optional<int> percent = TaskValues::progress(value);
    const std::optional<int> priority = TaskValues::priority(value);
    if (name == QLatin1String("assigned-to") || name == QLatin1String("assignee"))
        subject.setManagerName(value);
    else if ((name == QLatin1String("end-date") || name == QLatin1String("due")) && date)
        subject.setPlanEndDate(*date);
    else if (name == QLatin1String("progress") && percent)
        subject.setProgress(*percent);
    else if (name == QLatin1String("priority") && priority)
        subject.setPriority(*priority);
    else
        addDetail(name, value);
}

void XmindTopics::addId(const QString &id)
{
    if (!id.isEmpty())
        m_byId.insert(id, m_open.back().subject);
}

void XmindTopics::addRemark(const QString &id, const QString &name, const QString &text)
{
    m_remarks.push_back({id, name, text});
}

void XmindTopics::addArrow(const QString &from, const QString &to, const QString &title)
{
    m_arrows.push_back({from, to, title});
}

void XmindTopics::finish()
{
    for (const Remark &remark : m_remarks) {
        const TreeItem *const subject = m_byId.value(remark.id);
        if (subject)
            m_tree.addNamedDetail(*subject, remark.name, remark.text);
        else // of a topic that has been deleted
            m_tree.note(Kind::LeftOut, QStringLiteral("<%1> %2").arg(remark.name, remark.text));
    }
    finishArrows();
}

void XmindTopics::finishArrows()
{
    for (const Arrow &arrow : m_arrows) {
        const TreeItem *const from = m_byId.value(arrow.from);
        const TreeItem *const to = m_byId.value(arrow.to);
        if (!from || !to) {
            m_tree.note(
                Kind::LeftOut,
                DiagramExchange::tr("an arrow \"%1\" that joins no two topics").arg(arrow.title));
            continue;
        }
        QString text = QChar(u'\u2192') + QLatin1Char(' ') + to->title();
        if (!arrow.title.isEmpty())
            text += QStringLiteral(" (%1)").arg(arrow.title);
        m_tree.addDetail(*from, text, DiagramExchange::tr("an arrow"));
    }
}

QStringList XmindNames::markersOf(const TreeItem &subject)
{
    QStringList markers;
    constexpr int lowest = 9; // there are no more of these markers
    if (subject.priority() >= 1 && subject.priority() <= lowest)
        markers.append(priorityMarker + QString::number(subject.priority()));
    for (const TaskMarker &marker : taskMarkers) {
        const bool fits =
            marker.status == subject.status() && (marker.progress == subject.progress() ||
                                                  marker.progress < 0 || marker.progress == 100);
        if (fits) {
            markers.append(marker.name);
            break;
        }
    }
    return markers;
}
