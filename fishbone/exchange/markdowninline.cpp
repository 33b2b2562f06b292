// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdowninline.h>

#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/markdowntags.h>

#include <QRegularExpression>
#include <QStringView>

#include <algorithm>
#include <vector>

namespace {

using MarkdownInline::Content;
using InlineKind = MarkdownInline::Kind;

bool isPunctuation(QChar c)
{
    const char16_t code = c.unicode();
    return code < 0x7f && code > ' ' && !c.isLetterOrNumber();
}

/** Reads a piece of Markdown character by character. */
class Reader
{
public:
    Reader(const QString &markdown, InlineKind kind, const QHash<QString, QString> &definitions)
        : m_markdown(markdown)
        , m_kind(kind)
        , m_definitions(definitions)
    {
    }

    Content read()
    {
        while (m_position < m_markdown.size()) {
            if (m_position == m_linkTextEnd)
                m_position = m_linkEnd;
            else if (!readSpecial())
                append(m_markdown.at(m_position++));
        }
        return {withoutMarks(), m_links, m_images};
    }

private:
    /** A run of marks of emphasis that may turn out to begin some. */
    struct Opening
    {
        QChar mark;
        int length;
        int place; ///< in m_text
    };

    QChar at(int i) const { return i < m_markdown.size() ? m_markdown.at(i) : QChar(); }
    void append(QChar c) { m_text.append(c); }

    /** Reads what is more than a character at the current position; false when nothing is. */
    bool readSpecial()
    {
        const QChar c = at(m_position);
        if (c == QLatin1Char('\\'))
            return readEscape();
        if (c == QLatin1Char('&'))
            return readReference();
        if (m_kind == InlineKind::Target)
            return false;
        switch (c.unicode()) {
        case u'<':
            return readAngle();
        case u'`':
            return readCode();
        case u'[':
        case u'!':
            return readLink();
        case u'*':
        case u'_':
            return readEmphasis();
        default:
            return false;
        }
    }

    bool readEscape()
    {
        if (!isPunctuation(at(m_position + 1)))
            return false;
        append(at(m_position + 1));
        m_position += 2;
        return true;
    }

    bool readReference()
    {
        constexpr int longest = 12;
        const QString ahead = m_markdown.mid(m_position + 1, longest);
        const int length = ahead.indexOf(QLatin1Char(';'));
        const QString text = ExchangeText::referenced(ahead.left(std::max(length, 0)));
        if (text.isNull())
            return false;
        m_text.append(text);
        m_position += length + 2;
        return true;
    }

    /** Reads a line break or a link in angle brackets. */
    bool readAngle()
    {
        static const QRegularExpression lineBreak(QStringLiteral("^<br\\s?/?>"),
                                                  QRegularExpression::CaseInsensitiveOption);
        static const QRegularExpression scheme(QStringLiteral("^<[A-Za-z][A-Za-z0-9+.-]{1,31}:"));
        constexpr int longest = 34;
        const QString ahead = m_markdown.mid(m_position, longest);
        if (const auto match = lineBreak.match(ahead); match.hasMatch()) {
            append(QLatin1Char('\n'));
            m_position += match.capturedLength();
            return true;
        }
        if (m_kind != InlineKind::Title)
            return false;
        if (!scheme.match(ahead).hasMatch())
            return readTag();
        const int end = find(QLatin1Char('>'), m_position);
        if (end < 0)
            return false;
        const QString url = m_markdown.mid(m_position + 1, end - m_position - 1);
        noteUrl(url);
        m_text.append(url);
        m_position = end + 1;
        return true;
    }

    /** Reads a tag that forms the text, or a picture. */
    bool readTag()
    {
        constexpr int longest = 2000;
        const MarkdownTags::Tag tag = MarkdownTags::read(m_markdown.mid(m_position, longest));
        if (tag.length == 0)
            return false;
        m_text.append(tag.text);
        noteUrl(tag.image, true);
        m_position += tag.length;
        if (!tag.image.isEmpty() && tag.text.isEmpty())
            closeGap();
        return true;
    }

    /** Leaves no more blanks where a picture without a text was. */
    void closeGap()
    {
        const bool isBegin = m_text.isEmpty() || m_text.endsWith(QLatin1Char(' '));
        while (isBegin && at(m_position) == QLatin1Char(' '))
            ++m_position;
        while (m_position == m_markdown.size() && m_text.endsWith(QLatin1Char(' ')))
            m_text.chop(1);
    }

    /** Reads a code span, whose text counts as it is. */
    bool readCode()
    {
        const int length = runLength(m_position);
        const QString run = m_markdown.mid(m_position, length);
        int end = -1;
        if (length <= longestCodeMark && !m_missingCodeMarks[length]) {
            end = m_markdown.indexOf(run, m_position + length);
            while (end >= 0 && runLength(end) != length)
                end = m_markdown.indexOf(run, end + runLength(end));
            m_missingCodeMarks[length] = end < 0;
        }
        m_text.append(end < 0 ? run
                              : m_markdown.mid(m_position + length, end - m_position - length));
        m_position = end < 0 ? m_position + length : end + length;
        return true;
    }

    /** Enters the text of a link or picture; false when none begins here. */
    bool readLink()
    {
        const bool isImage = at(m_position) == QLatin1Char('!');
        const int begin = m_position + (isImage ? 1 : 0);
        const int textEnd =
            m_kind == InlineKind::Title && at(begin) == QLatin1Char('[') ? linkTextEnd(begin) : -1;
        if (textEnd < 0)
            return false;
        const int end = at(textEnd + 1) == QLatin1Char('(') ? readTarget(textEnd, isImage)
                                                            : readName(begin, textEnd, isImage);
        if (end < 0)
            return false;
        m_linkTextEnd = isImage ? textEnd - sizeLength(begin, textEnd) : textEnd;
        m_linkEnd = end;
        m_position = begin + 1;
        return true;
    }

    /** How long the size is that some editors have behind the text of a picture: "|100x145". */
    int sizeLength(int begin, int textEnd) const
    {
        static const QRegularExpression size(QStringLiteral("\\|\\d{1,5}(?:x\\d{1,5})?$"));
        constexpr int longest = 12;
        const int from = std::max(begin + 1, textEnd - longest);
        return int(size.match(m_markdown.mid(from, textEnd - from)).capturedLength());
    }

    /** Reads where the link leads whose text ends at @p textEnd; where that ends, -1 for no link.
     */
    int readTarget(int textEnd, bool isImage)
    {
        const bool isAngled = at(textEnd + 2) == QLatin1Char('<');
        const int begin = textEnd + (isAngled ? 3 : 2);
        const int end = find(QLatin1Char(isAngled ? '>' : ')'), begin);
        const int close = isAngled && end >= 0 ? find(QLatin1Char(')'), end) : end;
        if (close < 0)
            return -1;
        QString url = m_markdown.mid(begin, end - begin);
        if (!isAngled)
            url = url.section(QLatin1Char(' '), 0, 0); // a title of the link may follow
        noteUrl(MarkdownInline::read(url, InlineKind::Target).text, isImage);
        return close + 1;
    }

    /** Looks up where the link leads whose text goes from @p begin to @p textEnd: by the name
     * behind it, or else by the text. Where it ends, -1 for no link. */
    int readName(int begin, int textEnd, bool isImage)
    {
        if (m_definitions.isEmpty())
            return -1;
        int end = textEnd + 1;
        QString name = m_markdown.mid(begin + 1, textEnd - begin - 1);
        if (at(end) == QLatin1Char('[')) {
            const int close = linkTextEnd(end);
            if (close > end + 1)
                name = m_markdown.mid(end + 1, close - end - 1);
            end = close < 0 ? end : close + 1;
        }
        const auto found = m_definitions.constFind(name.toLower());
        if (found == m_definitions.constEnd())
            return -1;
        noteUrl(*found, isImage);
        return end;
    }

    /** Where the text of the link that begins at @p begin ends; -1 when it does not. */
    int linkTextEnd(int begin) const
    {
        for (int i = begin + 1; i < m_markdown.size(); ++i) {
            const QChar c = m_markdown.at(i);
            if (c == QLatin1Char(']'))
                return i;
            if (c == QLatin1Char('['))
                return -1;
            if (c == QLatin1Char('\\'))
                ++i;
        }
        return -1;
    }

    /** Takes a run of marks out when it ends emphasis that began before. */
    bool readEmphasis()
    {
        const QChar mark = at(m_position);
        const int length = runLength(m_position);
        const QChar before = m_position > 0 ? at(m_position - 1) : QChar();
        const QChar after = at(m_position + length);
        const bool mayEnd = m_position > 0 && !before.isSpace();
        const bool mayBegin = m_position + length < m_markdown.size() && !after.isSpace();
        const bool isInWord = before.isLetterOrNumber() && after.isLetterOrNumber();
        m_position += length;
        if (isInWord && mark == QLatin1Char('_')) {
            m_text.append(QString(length, mark));
            return true;
        }
        if (mayEnd && !m_openings.empty() && m_openings.back().mark == mark &&
            m_openings.back().length == length) {
            m_marks.push_back({m_openings.back().place, length});
            m_openings.pop_back();
            return true;
        }
        if (mayBegin)
            m_openings.push_back({mark, length, int(m_text.size())});
        m_text.append(QString(length, mark));
        return true;
    }

    /** The number of equal characters from @p i on. */
    int runLength(int i) const
    {
        int end = i;
        while (end < m_markdown.size() && m_markdown.at(end) == m_markdown.at(i))
            ++end;
        return end - i;
    }

    /**
     * The place of the next @p c without a backslash from @p from on, -1 when there is none, which
     * is remembered, so that many beginnings without an end are not looked through each time.
     */
    int find(QLatin1Char c, int from)
    {
        if (m_missing.contains(c))
            return -1;
        for (int i = from; i < m_markdown.size(); ++i) {
            if (m_markdown.at(i) == c)
                return i;
            if (m_markdown.at(i) == QLatin1Char('\\'))
                ++i;
        }
        m_missing.append(c);
        return -1;
    }

    void noteUrl(const QString &url, bool isImage = false)
    {
        if (!url.isEmpty())
            (isImage ? m_images : m_links).append(url);
    }

    /** The text without the marks that began emphasis. */
    QString withoutMarks()
    {
        std::sort(m_marks.begin(), m_marks.end(),
                  [](const Mark &a, const Mark &b) { return a.place < b.place; });
        QString text;
        int end = 0;
        for (const Mark &mark : m_marks) {
            text.append(QStringView(m_text).mid(end, mark.place - end).toString());
            end = mark.place + mark.length;
        }
        return text + m_text.mid(end);
    }

    struct Mark
    {
        int place; ///< in m_text
        int length;
    };

    static constexpr int longestCodeMark = 32;

    const QString m_markdown;
    const InlineKind m_kind;
    const QHash<QString, QString> &m_definitions;
    int m_position = 0;
    int m_linkTextEnd = -1; ///< of the link that was entered last
    int m_linkEnd = -1;
    QString m_text;
    QStringList m_links;
    QStringList m_images;
    QString m_missing; ///< the characters that do not come any more
    bool m_missingCodeMarks[longestCodeMark + 1] = {};
    std::vector<Opening> m_openings;
    std::vector<Mark> m_marks;
};

} // namespace

namespace MarkdownInline {

Content read(const QString &markdown, InlineKind kind, const QHash<QString, QString> &definitions)
{
    return Reader(markdown, kind, definitions).read();
}

} // namespace MarkdownInline
