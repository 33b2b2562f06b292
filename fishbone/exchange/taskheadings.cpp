// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskheadings.h>

#include <fishbone/exchange/taskwords.h>

#include <QHash>
#include <QSet>

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
        QString::fromUtf8("key|issue key|iid|issue iid|键值|关键字|问题关键字|議題金鑰|金鑰|キー|"
                          "課題キー|키|이슈 키|schlüssel|vorgangsschlüssel|clé|clé de ticket|"
                          "clé du ticket|clave|clave de incidencia|clave de la incidencia|chave|"
                          "chave do item|chave da item|chiave|chiave ticket|klucz|"
                          "klucz zgłoszenia|ключ|ключ проблемы|ключ задачи|المفتاح|مفتاح المشكلة")
            .split(QLatin1Char('|'));
    const auto column = std::find_if(columns.cbegin(), columns.cend(), [&headings](int each) {
        return shown.contains(TaskWords::compared(headings.value(each).simplified()));
    });
    return column == columns.cend() ? -1 : *column;
}

bool areDayFirst(const QStringList &headings)
{
    QHash<QString, int> counts; // of the headings that each language has
    QSet<QString> compared;
    for (const QString &heading : headings)
        compared.insert(TaskWords::compared(heading));
    for (const TaskWords::Entry &entry : TaskWords::headings()) {
        const QStringList words = TaskWords::listed(entry);
        for (const QString &word : words)
            counts[QLatin1String(entry.language)] += compared.contains(word) ? 1 : 0;
    }
    const int english = counts.value(QStringLiteral("en"));
    return std::any_of(counts.cbegin(), counts.cend(),
                       [english](int count) { return count > english; });
}

} // namespace TaskHeadings
