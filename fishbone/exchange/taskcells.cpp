// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskcells.h>

#include <fishbone/exchange/csvtable.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/owntable.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/taskheadings.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/taskvalues.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectmarks.h>

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

using Role = TableMapping::Role;
using Kind = ExchangeReport::Kind;

bool isDate(Role role)
{
    return role == Role::Created || role == Role::PlannedEnd || role == Role::CompletedAt;
}

/** Whether the columns of that role are used up by making the tree. */
bool makesTree(Role role)
{
    return role == Role::Title || role == Role::Path || role == Role::Parent ||
           role == Role::Level || role == Role::Outline;
}

/** The key of the field that takes the texts of a column; empty when none does. */
QLatin1String textKey(Role role)
{
    switch (role) {
    case Role::Uuid:
        return JsonNodes::uuidKey;
    case Role::Id:
    case Role::ShortId:
        return JsonNodes::showidKey;
    case Role::Manager:
        return JsonNodes::managerNameKey;
    case Role::ManagerId:
        return JsonNodes::managerIdKey;
    case Role::Creator:
        return JsonNodes::creatorNameKey;
    case Role::CreatorId:
        return JsonNodes::creatorIdKey;
    case Role::Detail:
        return JsonNodes::detailKey;
    default:
        return QLatin1String();
    }
}

/** People as one program or another lists them: "[Li,Bo]", "Li;". */
QString peopleIn(const QString &value)
{
    QString people = value.trimmed();
    if (people.startsWith(QLatin1Char('[')) && people.endsWith(QLatin1Char(']')))
        people = people.mid(1, people.size() - 2).trimmed();
    while (people.endsWith(QLatin1Char(';')) || people.endsWith(QLatin1Char(',')))
        people.chop(1);
    return people;
}

} // namespace

TaskCells::TaskCells(const std::vector<TaskTable::Row> &rows, std::size_t firstRow,
                     const TableMapping &mapping, TaskTable::Texts texts, ImportedTree &tree)
    : m_mapping(mapping)
    , m_tree(tree)
    , m_texts(texts)
    , m_isOwn(mapping.headings.contains(QLatin1String("uuid")) &&
              mapping.headings.contains(QLatin1String("parent")) &&
              mapping.headings.contains(QLatin1String("title")))
    , m_idColumn(TaskHeadings::shownId(mapping.headings, columnsOf(Role::Id)))
{
    findOrder(rows, firstRow);
}

QList<int> TaskCells::columnsOf(Role role) const
{
    constexpr int most = 64; // more of one role are no table of tasks
    QList<int> columns;
    for (int i = 0; i < m_mapping.roles.size() && columns.size() < most; ++i) {
        if (m_mapping.roles.at(i) == role)
            columns.append(i);
    }
    return columns;
}

QString TaskCells::text(const TaskTable::Row &row, int column) const
{
    QString cell = row.cells.value(column);
    if (m_texts != TaskTable::Texts::Guarded)
        return cell;
    if (!m_isOwn) // the line ends of a system are no part of what was written
        cell.replace(QLatin1String("\r\n"), QLatin1String("\n"))
            .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return CsvTable::unguarded(cell);
}

/** Finds out whether dates such as 3/4/2024 begin with the day or with the month: all dates of a
 * column do the same, and only the day can be above twelve. Where none is, the language tells. */
void TaskCells::findOrder(const std::vector<TaskTable::Row> &rows, std::size_t firstRow)
{
    constexpr int months = 12;
    const bool isDayFirst = TaskHeadings::areDayFirst(m_mapping.headings);
    for (int column = 0; column < m_mapping.roles.size(); ++column) {
        if (!isDate(m_mapping.roles.at(column)))
            continue;
        bool isSlashed = false;
        bool isKnown = false;
        bool dayFirst = isDayFirst;
        for (std::size_t i = firstRow; i < rows.size() && !isKnown; ++i) {
            const auto numbers = TaskValues::slashedNumbers(rows[i].cells.value(column));
            isSlashed = isSlashed || numbers;
            isKnown = numbers && (numbers->first > months || numbers->second > months);
            dayFirst = isKnown ? numbers->first > months : isDayFirst;
        }
        m_dayFirst.insert(column, dayFirst);
        if (isSlashed)
            m_tree.note(Kind::ReadAs, dayFirst
                                          ? DiagramExchange::tr("dates of \"%1\" as day/month/year")
                                                .arg(m_mapping.headings.value(column))
                                          : DiagramExchange::tr("dates of \"%1\" as month/day/year")
                                                .arg(m_mapping.headings.value(column)));
    }
}

void TaskCells::apply(const TaskTable::Row &row, TreeItem &subject)
{
    m_kept.clear();
    m_keptPlaces.clear();
    m_isShown = m_idColumn >= 0 && !text(row, m_idColumn).isEmpty();
    for (m_column = 0; m_column < row.cells.size(); ++m_column) {
        const Role role = m_mapping.roles.value(m_column, Role::Other);
        const QString value = text(row, m_column);
        if (value.isEmpty() || makesTree(role))
            continue;
        const QString heading = m_mapping.headings.value(m_column).trimmed();
        if (!applyCell(role, value, subject, heading, row.line))
            keep(heading, value.trimmed());
    }
    for (const auto &[heading, values] : m_kept) {
        const QString text = values.join(QLatin1String(", "));
        if (heading.isEmpty())
            m_tree.addDetail(subject, text, DiagramExchange::tr("cells without a heading"),
                             row.line);
        else
            m_tree.addNamedDetail(subject, heading, text, row.line);
    }
}

/** Keeps what no field takes; columns of one name share a line. */
void TaskCells::keep(const QString &heading, const QString &value)
{
    if (value.isEmpty())
        return;
    const auto place = m_keptPlaces.constFind(heading);
    if (place != m_keptPlaces.constEnd()) {
        m_kept[*place].second.append(value);
        return;
    }
    m_keptPlaces.insert(heading, m_kept.size());
    m_kept.emplace_back(heading, QStringList(value));
}

bool TaskCells::applyCell(Role role, const QString &value, TreeItem &subject,
                          const QString &heading, qint64 line)
{
    if (role == Role::Other)
        return applyOwn(value, subject, heading);
    if (role == Role::Id && m_isShown && m_column != m_idColumn)
        return false;
    if (role == Role::Url)
        return applyUrl(value, subject, heading, line);
    if (isDate(role))
        return applyDate(role, value, subject);
    if (role == Role::Verdict || role == Role::Votes)
        return applyMark(role, value, subject);
    if (role == Role::Followers) {
        const bool isForeign =
            heading != QLatin1String("followers") && !value.contains(QLatin1Char(';'));
        static const QRegularExpression ends(QStringLiteral("\\s*[,\n]\\s*"));
        subject.setFollowers(subject.followers() +
                             (isForeign ? peopleIn(value).split(ends, Qt::SkipEmptyParts)
                                        : SubjectAttributes::separated(value)));
        return true;
    }
    if (textKey(role).size() == 0)
        return applyNumber(role, value, subject, heading, line);
    const bool isPerson = role == Role::Manager && !m_isOwn;
    return applyText(role, isPerson ? peopleIn(value) : value, subject);
}

/** Takes a text whose field is still free. */
bool TaskCells::applyText(Role role, const QString &value, TreeItem &subject)
{
    const SubjectAttributes::Attribute &attribute = SubjectAttributes::named(textKey(role));
    const bool isTaken = role != Role::Uuid && !attribute.text(subject).isEmpty();
    return !isTaken && attribute.setText(subject, value);
}

bool TaskCells::applyMark(Role role, const QString &value, TreeItem &subject)
{
    if (role == Role::Verdict) {
        const Verdict verdict = TaskValues::verdict(value);
        if (verdict != Verdict::None)
            SubjectMarks::setVerdict(subject, verdict);
        return verdict != Verdict::None;
    }
    bool isNumber = false;
    const int votes = value.trimmed().toInt(&isNumber);
    if (isNumber && votes > 0)
        SubjectMarks::setVotes(subject, votes);
    return isNumber && votes >= 0;
}

/** Takes a column of a table of this program that has the key of an attribute. */
bool TaskCells::applyOwn(const QString &value, TreeItem &subject, const QString &heading) const
{
    const std::vector<OwnTable::Column> &columns = OwnTable::columns();
    const auto column =
        std::find_if(columns.cbegin(), columns.cend(), [&heading](const OwnTable::Column &each) {
            return each.name == heading && each.name == each.key;
        });
    return m_isOwn && column != columns.cend() &&
           SubjectAttributes::named(column->key).setText(subject, value);
}

bool TaskCells::applyNumber(Role role, const QString &value, TreeItem &subject,
                            const QString &heading, qint64 line)
{
    std::optional<int> number;
    bool isNumber = false;
    const int type = value.trimmed().toInt(&isNumber);
    switch (role) {
    case Role::Status:
        number = heading.toLower() == QLatin1String("current state") ? TaskValues::storyState(value)
                                                                     : TaskValues::status(value);
        break;
    case Role::Priority:
        number = TaskValues::priority(value);
        break;
    case Role::Progress:
        number = TaskValues::progress(value);
        break;
    case Role::Type:
        number = isNumber ? std::make_optional(type) : std::nullopt;
        break;
    default:
        break;
    }
    if (!number)
        return applyRelated(role, value, subject, heading, line);
    if (role == Role::Status)
        subject.setStatus(*number);
    else if (role == Role::Priority)
        subject.setPriority(*number);
    else if (role == Role::Progress)
        subject.setProgress(*number);
    else
        subject.setType(*number);
    if (!isNumber)
        m_tree.note(Kind::ReadAs,
                    DiagramExchange::tr("\"%1\" of \"%2\" as %3").arg(value, heading).arg(*number),
                    line);
    return true;
}

/** Takes a status of a column of progress, and the reverse, as far as nothing else tells it. */
bool TaskCells::applyRelated(Role role, const QString &value, TreeItem &subject,
                             const QString &heading, qint64 line)
{
    const bool isPercentage = value.contains(QLatin1Char('%')) || value.contains(QChar(u'\uff05'));
    const bool isProgress = role == Role::Status && isPercentage;
    std::optional<int> number;
    if (isProgress && subject.progress() <= 0)
        number = TaskValues::progress(value);
    else if (role == Role::Progress && subject.status() == TreeItem::none)
        number = TaskValues::status(value);
    if (!number)
        return false;
    if (isProgress)
        subject.setProgress(*number);
    else
        subject.setStatus(*number);
    m_tree.note(Kind::ReadAs,
                DiagramExchange::tr("\"%1\" of \"%2\" as %3").arg(value, heading).arg(*number),
                line);
    return true;
}

bool TaskCells::applyDate(Role role, const QString &value, TreeItem &subject)
{
    const auto order = m_dayFirst.value(m_column) ? TaskValues::NumberOrder::DayFirst
                                                  : TaskValues::NumberOrder::MonthFirst;
    const std::optional<qint64> date = TaskValues::date(value, order);
    if (!date)
        return false;
    if (role == Role::Created)
        subject.setCreateDate(*date);
    else if (role == Role::PlannedEnd)
        subject.setPlanEndDate(*date);
    else if (subject.status() == TreeItem::none)
        subject.setStatus(TaskStatuses::finished); // it has a date of completion
    return role != Role::CompletedAt;              // no field takes that date
}

/** Takes the first of several links, and keeps the others. */
bool TaskCells::applyUrl(const QString &value, TreeItem &subject, const QString &heading,
                         qint64 line)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    const QStringList links =
        m_isOwn ? QStringList(value) : value.split(separators, Qt::SkipEmptyParts);
    const bool areLinks = std::all_of(links.cbegin(), links.cend(), [](const QString &link) {
        return link.contains(QLatin1String("://"));
    });
    if (links.size() > 1 && areLinks) {
        subject.setUrl(links.constFirst());
        m_tree.addNamedDetail(subject, heading, links.mid(1).join(QLatin1Char(' ')), line);
        return true;
    }
    if (!m_isOwn && links.size() > 1)
        return false;
    subject.setUrl(value);
    return true;
}
