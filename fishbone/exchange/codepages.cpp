// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/codepages.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <algorithm>
#include <array>

#if __has_include(<iconv.h>)
#include <iconv.h>
#define FISHBONE_HAS_ICONV
#endif

namespace {

bool isAscii(char c)
{
    return uchar(c) < 0x80;
}

/** The characters of Windows-1252 from 0x80 to 0x9f; 0 where there is none. */
constexpr std::array<char16_t, 32> windowsCharacters{
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017d, 0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178};

/** The text of @p bytes in Windows-1252; null when there is a byte that stands for nothing. */
QString fromWindows1252(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const uchar code = uchar(byte);
        const bool isSpecial = code >= 0x80 && code < 0xa0;
        const char16_t c = isSpecial ? windowsCharacters[code - 0x80] : char16_t(code);
        if (c == 0 && isSpecial)
            return QString();
        text.append(QChar(c));
    }
    return text;
}

/** Whether nearly all bytes beyond ASCII come in the pairs of common Chinese characters. In a text
 * of a European language, letters beyond ASCII stand alone. */
bool looksChinese(const QByteArray &bytes)
{
    int pairs = 0;
    int others = 0;
    for (int i = 0; i < bytes.size(); ++i) {
        if (isAscii(bytes.at(i)))
            continue;
        const uchar lead = uchar(bytes.at(i));
        const uchar trail = i + 1 < bytes.size() ? uchar(bytes.at(i + 1)) : 0;
        const bool isPair = lead >= 0xa1 && lead <= 0xf7 && trail >= 0xa1 && trail != 0xff;
        (isPair ? pairs : others) += 1;
        i += isPair ? 1 : 0;
    }
    constexpr int share = 20;
    return pairs > 0 && others * share <= pairs;
}

/** The text of @p bytes in GB 18030; null when it is none. */
QString fromChinese(const QByteArray &bytes)
{
#ifdef FISHBONE_HAS_ICONV
    const iconv_t converter = iconv_open("UTF-8", "GB18030");
    if (converter == iconv_t(-1))
        return QString();
    QByteArray source = bytes;
    QByteArray utf8(bytes.size() * 2 + 16, '\0'); // two bytes become three, four become four
    char *in = source.data();
    char *out = utf8.data();
    std::size_t left = std::size_t(source.size());
    std::size_t room = std::size_t(utf8.size());
    const bool isDone = iconv(converter, &in, &left, &out, &room) != std::size_t(-1) && left == 0;
    iconv_close(converter);
    return isDone ? QString::fromUtf8(utf8.constData(), int(out - utf8.constData())) : QString();
#else
    Q_UNUSED(bytes)
    return QString();
#endif
}

/** The first line with a byte that is not ASCII. */
qint64 firstOddLine(const QByteArray &bytes)
{
    const auto odd = std::find_if(bytes.cbegin(), bytes.cend(), [](char c) { return !isAscii(c); });
    return std::count(bytes.cbegin(), odd, '\n') + 1;
}

} // namespace

namespace CodePages {

std::optional<QString> decode(const QByteArray &bytes, ImportedTree &tree)
{
    const qint64 line = firstOddLine(bytes);
    const bool isChinese = looksChinese(bytes);
    QString name = QStringLiteral("GB 18030");
    QString text = isChinese ? fromChinese(bytes) : QString();
    if (text.isNull()) {
        name = QStringLiteral("Windows-1252");
        // A text has blanks and letters; bytes of another kind have everything.
        const bool isText = std::none_of(bytes.cbegin(), bytes.cend(), [](char c) {
            return uchar(c) < ' ' && c != '\n' && c != '\r' && c != '\t' && c != '\f';
        });
        text = isText && !isChinese ? fromWindows1252(bytes) : QString();
    }
    if (text.isNull()) {
        tree.fail(line, DiagramExchange::tr("the text is not encoded as UTF-8, nor in a code page "
                                            "that is known (Windows-1252, GB 18030)"));
        return std::nullopt;
    }
    tree.note(ExchangeReport::Kind::ReadAs,
              DiagramExchange::tr("the text as %1, since it is not encoded as UTF-8").arg(name),
              line);
    return text;
}

} // namespace CodePages
