// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskrownames.h>

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

/** A name by which rows are found: without blanks and the sign of a number. */
QString plainName(const QString &text)
{
    const QString name = text.trimmed();
    return name.startsWith(QLatin1Char('#')) ? name.mid(1).trimmed() : name;
}

/** The names that a reference to another row may hold, the surest first: "12", "Bug #12: Title",
 * "[KEY-1] Title", the end of a link, a title with a link behind it. */
QStringList namesIn(const QString &reference)
{
    static const QRegularExpression number(QStringLiteral("#(\\d+)\\b"));
    static const QRegularExpression key(QStringLiteral("^\\[?([A-Za-z][A-Za-z0-9_]*-\\d+)\\b"));
    static const QRegularExpression end(QStringLiteral("^\\w+://\\S*/([^/\\s]+)/?$"));
    static const QRegularExpression linked(QStringLiteral("^(.+) \\(\\w+://[^\\s()]*\\)$"));
    QStringList names{reference, plainName(reference)};
    for (const QRegularExpression &form : {number, key, end, linked}) {
        if (const auto match = form.match(reference); match.hasMatch())
            names.append(match.captured(1));
    }
    return names;
}

} // namespace

void TaskRowNames::add(const QString &name, int row)
{
    addOne(name, row);
    addOne(plainName(name), row);
}

void TaskRowNames::addOne(const QString &name, int row)
{
    if (!name.isEmpty() && !m_rows.contains(name))
        m_rows.insert(name, row);
}

int TaskRowNames::find(const QString &reference, int self, const QString &title) const
{
    const QStringList names = namesIn(reference);
    const auto name = std::find_if(names.cbegin(), names.cend(), [&](const QString &n) {
        return m_rows.contains(n) && (m_rows.value(n) != self || n != title);
    });
    return name == names.cend() ? -1 : m_rows.value(*name);
}
