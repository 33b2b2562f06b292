// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskheadings.h>

#include <algorithm>

namespace TaskHeadings {

int rowOf(const std::vector<TaskTable::Row> &rows)
{
    constexpr std::size_t searched = 10; // names and dates of a report may stand above
    for (std::size_t i = 0; i < rows.size() && i < searched; ++i) {
        const QVector<TableMapping::Role> roles = TableMapping::guessed(rows[i].cells);
        const auto known = std::count_if(roles.cbegin(), roles.cend(), [](TableMapping::Role role) {
            return role != TableMapping::Role::Other;
        });
        if (TableMapping::hasTitles(roles) && (i == 0 || known > 1))
            return int(i);
    }
    return -1;
}

QString listed(const QStringList &headings)
{
    constexpr int most = 40;
    QStringList quoted;
    for (const QString &heading : headings.mid(0, most))
        quoted.append(QLatin1Char('"') + heading.simplified().left(most) + QLatin1Char('"'));
    return quoted.join(QLatin1String(", "));
}

int shownId(const QStringList &headings, const QList<int> &columns)
{
    static const QStringList shown =
        QString::fromUtf8("key|issue key|iid|issue iid|\u952e\u503c|\u5173\u952e\u5b57|"
                          "\u95ee\u9898\u5173\u952e\u5b57")
            .split(QLatin1Char('|'));
    const auto column = std::find_if(columns.cbegin(), columns.cend(), [&headings](int each) {
        return shown.contains(headings.value(each).simplified().toLower());
    });
    return column == columns.cend() ? -1 : *column;
}

} // namespace TaskHeadings
