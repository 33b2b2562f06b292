// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdownfrontmatter.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

/** Where a line of the front matter divides into a name and a value; -1 when it does not. */
int colonOf(const QString &line)
{
    static const QRegularExpression entry(QStringLiteral("^[A-Za-z_][\\w -]*:(?=\\s|$)"));
    const auto match = entry.match(line);
    return match.hasMatch() ? int(match.capturedLength()) - 1 : -1;
}

/** Whether a line can stand in front matter. */
bool isFrontMatter(const QString &line)
{
    return line.isEmpty() || colonOf(line) >= 0 || line.startsWith(QLatin1Char('#')) ||
           line.startsWith(QLatin1String("- ")) || line.at(0).isSpace();
}

/** Front matter that is JSON, as names and values; as it is when it is none. */
QStringList entriesOf(const QStringList &lines)
{
    const QString text = lines.join(QLatin1Char('\n'));
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject())
        return lines;
    QStringList entries;
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QJsonValue value = entry.value();
        const bool isNested = value.isObject() || value.isArray();
        const QString nested = QString::fromUtf8(
            (value.isObject() ? QJsonDocument(value.toObject()) : QJsonDocument(value.toArray()))
                .toJson(QJsonDocument::Compact));
        entries.append(entry.key() + QLatin1String(": ") +
                       (isNested ? nested : value.toVariant().toString()));
    }
    return entries;
}

} // namespace

MarkdownFrontMatter::MarkdownFrontMatter(ExchangeText::Lines lines)
{
    if (!lines.next() || lines.raw() != QLatin1String("---"))
        return;
    QStringList entries;
    bool isJson = false;
    while (lines.next()) {
        const QString line = lines.raw();
        if (line == QLatin1String("---") || line == QLatin1String("...")) {
            m_entries = entriesOf(entries);
            m_firstLine = entries.isEmpty() ? 0 : lines.number() + 1;
            return;
        }
        isJson = isJson || (entries.isEmpty() && line == QLatin1String("{"));
        if (!isJson && !isFrontMatter(line))
            return;
        entries.append(line);
    }
}

void MarkdownFrontMatter::keep(ImportedTree &tree) const
{
    const bool isSingle = tree.container().childCount() == 1;
    const TreeItem &head = isSingle ? *tree.container().childAtIndex(0) : tree.container();
    for (const QString &line : m_entries) {
        const int colon = colonOf(line);
        QString value = colon < 0 ? line.trimmed() : line.mid(colon + 1).trimmed();
        if (value.size() > 1 && value.at(0) == value.back() &&
            QStringLiteral("\"'").contains(value.at(0)))
            value = value.mid(1, value.size() - 2);
        const bool isTitle = colon >= 0 && line.left(colon) == QLatin1String("title");
        if (isTitle)
            tree.setCommonTitle(value);
        if (isTitle && (!isSingle || value == head.title()))
            continue;
        tree.addDetail(head, line.trimmed(), DiagramExchange::tr("the front matter"));
    }
}
