// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangetext.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <QStringView>
#include <QtEndian>

#include <algorithm>
#include <string>

namespace {

constexpr int tabWidth = 4;

/** The units of two or four bytes behind a byte order mark. */
template <typename Unit, typename Text>
Text unitsOf(const QByteArray &bytes, bool bigEndian)
{
    Text units;
    units.reserve(std::size_t(bytes.size()) / sizeof(Unit));
    for (std::size_t i = sizeof(Unit); i + sizeof(Unit) <= std::size_t(bytes.size());
         i += sizeof(Unit)) {
        const char *const unit = bytes.constData() + i;
        units.push_back(bigEndian ? qFromBigEndian<Unit>(unit) : qFromLittleEndian<Unit>(unit));
    }
    return units;
}

QString fromUtf16(const QByteArray &bytes, bool bigEndian)
{
    return QString::fromStdU16String(unitsOf<quint16, std::u16string>(bytes, bigEndian));
}

QString fromUtf32(const QByteArray &bytes, bool bigEndian)
{
    return QString::fromStdU32String(unitsOf<quint32, std::u32string>(bytes, bigEndian));
}

/** The line in which @p bytes and @p expected differ first. */
qint64 firstDifference(const QByteArray &bytes, const QByteArray &expected)
{
    const auto end = bytes.cbegin() + std::min(bytes.size(), expected.size());
    const auto [differs, ignored] = std::mismatch(bytes.cbegin(), end, expected.cbegin());
    return std::count(bytes.cbegin(), differs, '\n') + 1;
}

} // namespace

namespace ExchangeText {

std::optional<QString> decode(const QByteArray &bytes, ImportedTree &tree)
{
    if (bytes.startsWith(QByteArray("\xff\xfe\0\0", 4)))
        return fromUtf32(bytes, false);
    if (bytes.startsWith(QByteArray("\0\0\xfe\xff", 4)))
        return fromUtf32(bytes, true);
    if (bytes.startsWith("\xff\xfe"))
        return fromUtf16(bytes, false);
    if (bytes.startsWith("\xfe\xff"))
        return fromUtf16(bytes, true);
    const QByteArray utf8 = bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes;
    // Told the size, since it would end a text at a null character otherwise.
    const QString text = QString::fromUtf8(utf8.constData(), utf8.size());
    // What cannot be decoded is replaced by this character.
    if (text.contains(QChar(QChar::ReplacementCharacter)) && text.toUtf8() != utf8) {
        tree.fail(firstDifference(utf8, text.toUtf8()),
                  DiagramExchange::tr("the text is not encoded as UTF-8"));
        return std::nullopt;
    }
    return text;
}

QString referenced(const QString &name)
{
    static const struct
    {
        QLatin1String name;
        char16_t character;
    } named[] = {
        {QLatin1String("amp"), u'&'},   {QLatin1String("lt"), u'<'},
        {QLatin1String("gt"), u'>'},    {QLatin1String("quot"), u'"'},
        {QLatin1String("apos"), u'\''}, {QLatin1String("nbsp"), u'\u00a0'},
    };
    for (const auto &entry : named) {
        if (name == entry.name)
            return QString(QChar(entry.character));
    }
    if (!name.startsWith(QLatin1Char('#')))
        return QString();
    bool isNumber = false;
    const bool isHexadecimal =
        QStringView(name).mid(1).startsWith(QLatin1Char('x'), Qt::CaseInsensitive);
    const uint code = name.mid(isHexadecimal ? 2 : 1).toUInt(&isNumber, isHexadecimal ? 16 : 10);
    if (!isNumber || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return QString();
    if (!QChar::requiresSurrogates(code))
        return QString(QChar(code));
    return QString(QChar(QChar::highSurrogate(code))) + QChar(QChar::lowSurrogate(code));
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

bool Lines::next()
{
    if (m_position >= m_text.size())
        return false;
    const auto begin = m_text.cbegin() + m_position;
    const auto end = std::find_if(begin, m_text.cend(), [](QChar c) {
        return c == QLatin1Char('\n') || c == QLatin1Char('\r');
    });
    m_indentation = 0;
    auto first = begin;
    for (; first != end && (*first == QLatin1Char(' ') || *first == QLatin1Char('\t')); ++first)
        m_indentation += *first == QLatin1Char(' ') ? 1 : tabWidth - m_indentation % tabWidth;
    m_line = QString(first, int(end - first)).trimmed();
    m_position = int(end - m_text.cbegin());
    const bool isPair = QStringView(m_text).mid(m_position).left(2) == QLatin1String("\r\n");
    m_position += isPair ? 2 : 1;
    ++m_number;
    return true;
}

} // namespace ExchangeText
