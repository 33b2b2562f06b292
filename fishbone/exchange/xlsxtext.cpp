// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xlsxtext.h>

#include <fishbone/exchange/xmlsupport.h>

#include <QRegularExpression>

namespace {

const QRegularExpression &escape()
{
    static const QRegularExpression form(QStringLiteral("_x([0-9A-Fa-f]{4})_"));
    return form;
}

} // namespace

namespace XlsxText {

QString escaped(const QString &text)
{
    static const QRegularExpression beginning(QStringLiteral("_(?=x[0-9A-Fa-f]{4}_)"));
    QString safe = text;
    safe.replace(beginning, QStringLiteral("_x005F_"));
    QString result;
    for (const QChar c : qAsConst(safe)) {
        // A carriage return would be read as a line feed.
        const bool isControl =
            c < QLatin1Char(' ') && c != QLatin1Char('\n') && c != QLatin1Char('\t');
        if (isControl)
            result.append(QStringLiteral("_x%1_").arg(c.unicode(), 4, 16, QLatin1Char('0')));
        else
            result.append(c);
    }
    return XmlSupport::storable(result);
}

QString unescaped(const QString &text)
{
    QString result;
    int end = 0;
    for (auto matches = escape().globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result.append(text.mid(end, match.capturedStart() - end));
        result.append(QChar(match.captured(1).toUShort(nullptr, 16)));
        end = match.capturedEnd();
    }
    return end == 0 ? text : result + text.mid(end);
}

} // namespace XlsxText
