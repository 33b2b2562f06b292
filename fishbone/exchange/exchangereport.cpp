// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangereport.h>

namespace {

using Kind = ExchangeReport::Kind;

/** A text that fits into a line. */
QString shortened(const QString &text)
{
    constexpr int longest = 200;
    const QString line = text.left(2 * longest).simplified();
    return line.size() > longest ? line.left(longest) + QChar(u'\u2026') : line;
}

QString patternOf(Kind kind)
{
    switch (kind) {
    case Kind::LeftOut:
        return ExchangeReport::tr("left out: %1");
    case Kind::InDetails:
        return ExchangeReport::tr("put into the details: %1");
    case Kind::ReadAs:
        return ExchangeReport::tr("taken: %1");
    case Kind::Appearance:
        return ExchangeReport::tr("appearance left out: %1");
    }
    return QString();
}

QString lineOf(const ExchangeReport::Entry &entry)
{
    const QString text = patternOf(entry.kind).arg(entry.what);
    if (entry.count > 1 && entry.line > 0)
        return ExchangeReport::tr("%1 (%2 times, first in line %3)")
            .arg(text)
            .arg(entry.count)
            .arg(entry.line);
    if (entry.count > 1)
        return ExchangeReport::tr("%1 (%2 times)").arg(text).arg(entry.count);
    if (entry.line > 0)
        return ExchangeReport::tr("%1 (line %2)").arg(text).arg(entry.line);
    return text;
}

} // namespace

void ExchangeReport::add(Kind kind, const QString &what, qint64 line)
{
    QString name = shortened(what);
    const auto keyOf = [kind](const QString &text) { return QChar(int(kind)) + text; };
    if (m_entries.size() >= maximalEntries && !m_places.contains(keyOf(name)))
        name = tr("other things");
    const QString key = keyOf(name);
    const auto place = m_places.constFind(key);
    if (place != m_places.constEnd()) {
        ++m_entries[*place].count;
        return;
    }
    m_places.insert(key, int(m_entries.size()));
    m_entries.append({kind, name, 1, line});
}

int ExchangeReport::count(Kind kind) const
{
    int sum = 0;
    for (const Entry &entry : m_entries)
        sum += entry.kind == kind ? entry.count : 0;
    return sum;
}

QStringList ExchangeReport::lines() const
{
    QStringList lines;
    for (const Kind kind : {Kind::LeftOut, Kind::InDetails, Kind::ReadAs, Kind::Appearance}) {
        for (const Entry &entry : m_entries) {
            if (entry.kind == kind)
                lines.append(lineOf(entry));
        }
    }
    return lines;
}
