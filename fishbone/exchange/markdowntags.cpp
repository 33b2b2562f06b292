// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdowntags.h>

#include <QRegularExpression>

namespace {

/** The value of an attribute of a tag, with its references resolved. */
QString valueOf(const QString &tag, const char *attribute)
{
    const QRegularExpression form(
        QStringLiteral("\\s%1\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')").arg(QLatin1String(attribute)),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(tag);
    QString value = match.captured(1) + match.captured(2);
    return value.replace(QLatin1String("&amp;"), QLatin1String("&"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""));
}

/** Digits above or below the line. */
QString shifted(const QString &digits, bool isRaised)
{
    const QString raised = QStringLiteral("\u2070\u00b9\u00b2\u00b3\u2074\u2075\u2076\u2077\u2078"
                                          "\u2079");
    constexpr char16_t loweredZero = 0x2080;
    QString text;
    for (const QChar digit : digits) {
        const int value = digit.digitValue();
        text.append(isRaised ? raised.at(value) : QChar(char16_t(loweredZero + value)));
    }
    return text;
}

} // namespace

namespace MarkdownTags {

Tag read(const QString &markup)
{
    static const QRegularExpression form(QStringLiteral("^</?(?:b|strong|i|em|u|ins|kbd|big|small|"
                                                        "mark|code|samp|var|tt)>"),
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression moved(QStringLiteral("^<(su[bp])>([0-9]{1,9})</\\1>"),
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression image(QStringLiteral("^<img\\s[^<>]*>"),
                                          QRegularExpression::CaseInsensitiveOption);
    if (const auto match = form.match(markup); match.hasMatch())
        return {int(match.capturedLength()), {}, {}};
    if (const auto match = moved.match(markup); match.hasMatch()) {
        const bool isRaised = match.captured(1).toLower() == QLatin1String("sup");
        return {int(match.capturedLength()), shifted(match.captured(2), isRaised), {}};
    }
    if (const auto match = image.match(markup); match.hasMatch()) {
        const QString file = valueOf(match.captured(), "src");
        if (!file.isEmpty())
            return {int(match.capturedLength()), valueOf(match.captured(), "alt"), file};
    }
    return {};
}

} // namespace MarkdownTags
