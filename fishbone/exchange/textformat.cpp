// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace {

bool looksQuoted(const QString &text)
{
    return text.size() >= 2 && text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"'));
}

/** The length of the bullet that a line begins with, blanks behind it included; 0 for none. */
int bulletLength(const QString &line)
{
    static const QRegularExpression bullet(QString::fromUtf8(
        "^[-*+\u2022\u2023\u25e6\u2043\u25aa\u25cf\u25cb\u00b7\u2013\u2014]\\s+"));
    constexpr int longest = 200; // blanks that fill a line are none between a bullet and its text
    return int(bullet.match(line.left(longest)).capturedLength());
}

/** Whether @p title cannot stand in a line as it is. */
bool titleNeedsQuotes(const QString &title)
{
    return title.isEmpty() || title != title.trimmed() || looksQuoted(title) ||
           title.startsWith(QChar(QChar::ByteOrderMark)) || bulletLength(title) > 0 ||
           std::any_of(title.cbegin(), title.cend(), ExchangeText::isControl);
}

/** @p title in quotes, with the escapes of JSON. */
QString quotedTitle(const QString &title)
{
    const QByteArray json = QJsonDocument(QJsonArray{title}).toJson(QJsonDocument::Compact);
    QString text = QString::fromUtf8(json.mid(1, json.size() - 2));
    // Qt's JSON reader takes this one at the beginning of a text for a mark of the encoding.
    return text.replace(QChar(QChar::ByteOrderMark), QLatin1String("\\ufeff"));
}

/** The title of a line. Bullets do not belong to it; quotes that no title needs do. */
QString titleOf(const QString &text)
{
    const QString line = text.mid(bulletLength(text));
    if (!looksQuoted(line))
        return line;
    const QJsonArray values = QJsonDocument::fromJson('[' + line.toUtf8() + ']').array();
    const QString title = values.at(0).toString();
    return values.size() == 1 && titleNeedsQuotes(title) ? title : line;
}

bool readText(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    if (!text)
        return false;
    ExchangeText::Lines lines(*text);
    while (lines.next()) {
        if (!lines.text().isEmpty() &&
            !tree.add(lines.indentation(), titleOf(lines.text()), lines.number()))
            return false;
    }
    return true;
}

QByteArray writeText(const TreeItem &head)
{
    QByteArray bytes;
    OutlineWalk::walk(head, [&bytes](const TreeItem &subject, int level) {
        const QString &title = subject.title();
        bytes += QByteArray(level, '\t');
        bytes += (titleNeedsQuotes(title) ? quotedTitle(title) : title).toUtf8() + '\n';
    });
    return bytes;
}

} // namespace

const ExchangeFormat ExchangeFormats::text{DiagramExchange::Format::Text,
                                           "txt",
                                           QT_TRANSLATE_NOOP("DiagramExchange", "Indented text"),
                                           "txt text",
                                           "title children",
                                           readText,
                                           writeText};
