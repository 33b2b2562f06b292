// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/orgtext.h>

#include <fishbone/exchange/exchangetext.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace OrgText {

bool isPlainTitle(const QString &title)
{
    static const QRegularExpression special(QStringLiteral(
        "^\\[#|\\[\\[|(^|\\s):[^\\s]*:$|\\[\\d+(%|/\\d+)\\]$|^$|^[A-Z][A-Z-]*( |$)"));
    const bool isWhole = title == title.trimmed() && !title.contains(special);
    return isWhole && std::none_of(title.cbegin(), title.cend(), ExchangeText::isControl);
}

bool isPlainDetail(const QString &detail)
{
    static const QRegularExpression special(
        QStringLiteral("^[ \\t]*[*#:,]|^[ \\t]*(?:DEADLINE|SCHEDULED|CLOSED):|[ \\t]$"),
        QRegularExpression::MultilineOption);
    const bool isWhole = detail == detail.trimmed() && !detail.contains(special);
    return isWhole && std::none_of(detail.cbegin(), detail.cend(), [](QChar c) {
               return c != QLatin1Char('\n') &&
                      (ExchangeText::isControl(c) || c.unicode() == 0x2028 ||
                       c.unicode() == 0x2029 || c.unicode() == 0xa0);
           });
}

QString quoted(const QString &text)
{
    const bool isPlain = text == text.trimmed() && !text.isEmpty() &&
                         !text.startsWith(QLatin1Char('"')) &&
                         std::none_of(text.cbegin(), text.cend(), ExchangeText::isControl);
    if (isPlain)
        return text;
    const QByteArray json = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    QString value = QString::fromUtf8(json.mid(1, json.size() - 2));
    // Qt's JSON reader takes this one at the beginning of a text for a mark of the encoding.
    return value.replace(QChar(QChar::ByteOrderMark), QLatin1String("\\ufeff"));
}

QString unquoted(const QString &value)
{
    if (!value.startsWith(QLatin1Char('"')))
        return value;
    const QJsonArray values = QJsonDocument::fromJson('[' + value.toUtf8() + ']').array();
    return values.size() == 1 && values.at(0).isString() ? values.at(0).toString() : value;
}

QString uncovered(const QString &line)
{
    static const QRegularExpression covered(QStringLiteral("^(\\s*),(,*(?:\\*|#\\+))"));
    QString text = line;
    return text.replace(covered, QStringLiteral("\\1\\2"));
}

} // namespace OrgText
