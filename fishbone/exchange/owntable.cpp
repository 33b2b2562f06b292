// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/owntable.h>

#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/systemhelper.h>

#include <QDateTime>
#include <QSet>

#include <algorithm>
#include <vector>

namespace {

/** A number of milliseconds as a date, or as it is when no date can tell it. */
QString dateFrom(const QString &milliseconds)
{
    const qint64 number = milliseconds.toLongLong();
    const QString text =
        QDateTime::fromMSecsSinceEpoch(number, Qt::UTC).toString(Qt::ISODateWithMs);
    return QDateTime::fromString(text, Qt::ISODateWithMs).isValid() ? text : milliseconds;
}

/** The columns with a name of their own. */
std::vector<OwnTable::Column> namedColumns()
{
    using namespace JsonNodes;
    using OwnTable::Kind;
    return {
        {QLatin1String("uuid"), uuidKey},
        {QLatin1String("parent"), pidKey},
        {QLatin1String("title"), titleKey},
        {QLatin1String("status"), statusKey, Kind::Number},
        {QLatin1String("progress"), progressKey, Kind::Number},
        {QLatin1String("priority"), priorityKey, Kind::Number},
        {QLatin1String("manager"), managerNameKey},
        {QLatin1String("manager id"), managerIdKey},
        {QLatin1String("creator"), creatorNameKey},
        {QLatin1String("creator id"), creatorIdKey},
        {QLatin1String("followers"), followersKey},
        {QLatin1String("created"), createDateKey, Kind::Date},
        {QLatin1String("planned end"), planEndDateKey, Kind::Date},
        {QLatin1String("url"), urlKey},
        {QLatin1String("detail"), detailKey},
        {QLatin1String("short id"), showidKey},
        {QLatin1String("type"), typeKey, Kind::Number},
    };
}

OwnTable::Kind kindOf(const SubjectAttributes::Attribute &attribute)
{
    if (!attribute.source) // marks: only the votes are a number, and nothing a spreadsheet runs
        return attribute.key == QLatin1String("votes") ? OwnTable::Kind::Number
                                                       : OwnTable::Kind::Text;
    switch (attribute.source->kind()) {
    case SubjectAttribute::Number:
        return OwnTable::Kind::Number;
    case SubjectAttribute::Date:
        return OwnTable::Kind::Date;
    default:
        return OwnTable::Kind::Text;
    }
}

} // namespace

namespace OwnTable {

const std::vector<Column> &columns()
{
    static const std::vector<Column> all = [] {
        std::vector<Column> made = namedColumns();
        for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
            const bool isNamed =
                std::any_of(made.cbegin(), made.cend(), [&attribute](const Column &column) {
                    return column.key == attribute.key;
                });
            if (!isNamed)
                made.push_back({attribute.key, attribute.key, kindOf(attribute)});
        }
        return made;
    }();
    return all;
}

QStringList headings()
{
    QStringList names;
    for (const Column &column : columns())
        names.append(column.name);
    return names;
}

void walk(const TreeItem &head, const std::function<void(const QStringList &, int)> &take)
{
    QSet<QString> taken;
    std::vector<QString> path; // the uuids from the head down to the subject
    OutlineWalk::walk(head, [&](const TreeItem &subject, int level) {
        // The rows find their parents by the uuid, so that each has to have one of its own.
        QString uuid = SubjectAttributes::named(JsonNodes::uuidKey).text(subject);
        if (uuid.isEmpty() || taken.contains(uuid))
            uuid = SystemHelper::randomUuid();
        taken.insert(uuid);
        path.resize(std::size_t(level));
        QStringList values{uuid, path.empty() ? QString() : path.back(), subject.title()};
        for (std::size_t i = std::size_t(values.size()); i < columns().size(); ++i) {
            const Column &column = columns()[i];
            const QString value = SubjectAttributes::named(column.key).text(subject);
            const bool isDate = column.kind == Kind::Date && !value.isEmpty();
            values.append(isDate ? dateFrom(value) : value);
        }
        take(values, level);
        path.push_back(uuid);
    });
}

} // namespace OwnTable
