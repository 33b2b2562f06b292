// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangetext.h>

#include <fishbone/exchange/codepages.h>
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

/** Whether @p bytes are mostly Latin text in UTF-16 without a mark: every other byte is zero. */
bool isUnmarkedUtf16(const QByteArray &bytes, bool bigEndian)
{
    constexpr int looked = 400;
    const int end = int(std::min<qint64>(bytes.size(), looked)) & ~1;
    int zeros = 0;
    for (int i = 0; i < end; i += 2) {
        const char high = bytes.at(bigEndian ? i : i + 1);
        const char low = bytes.at(bigEndian ? i + 1 : i);
        if (low == '\0')
            return false;
        zeros += high == '\0' ? 1 : 0;
    }
    return bytes.size() % 2 == 0 && end >= 4 && zeros * 2 > end / 2;
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
    for (const bool bigEndian : {false, true}) {
        if (!isUnmarkedUtf16(bytes, bigEndian))
            continue;
        tree.note(ExchangeReport::Kind::ReadAs,
                  DiagramExchange::tr("the text as %1, since it is not encoded as UTF-8")
                      .arg(QLatin1String("UTF-16")));
        return fromUtf16("  " + bytes, bigEndian);
    }
    const QByteArray utf8 = bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes;
    // Told the size, since it would end a text at a null character otherwise.
    const QString text = QString::fromUtf8(utf8.constData(), utf8.size());
    // What cannot be decoded is replaced by this character.
    if (text.contains(QChar(QChar::ReplacementCharacter)) && text.toUtf8() != utf8)
        return CodePages::decode(utf8, tree);
    return text;
}

QString referenced(const QString &name)
{
    static const struct
    {
        QLatin1String name;
        char16_t character;
    } named[] = {
        {QLatin1String("amp"), u'&'},         {QLatin1String("lt"), u'<'},
        {QLatin1String("gt"), u'>'},          {QLatin1String("quot"), u'"'},
        {QLatin1String("apos"), u'\''},       {QLatin1String("nbsp"), u'\u00a0'},
        {QLatin1String("copy"), u'\u00a9'},   {QLatin1String("reg"), u'\u00ae'},
        {QLatin1String("trade"), u'\u2122'},  {QLatin1String("hellip"), u'\u2026'},
        {QLatin1String("mdash"), u'\u2014'},  {QLatin1String("ndash"), u'\u2013'},
        {QLatin1String("lsquo"), u'\u2018'},  {QLatin1String("rsquo"), u'\u2019'},
        {QLatin1String("ldquo"), u'\u201c'},  {QLatin1String("rdquo"), u'\u201d'},
        {QLatin1String("laquo"), u'\u00ab'},  {QLatin1String("raquo"), u'\u00bb'},
        {QLatin1String("bull"), u'\u2022'},   {QLatin1String("middot"), u'\u00b7'},
        {QLatin1String("times"), u'\u00d7'},  {QLatin1String("deg"), u'\u00b0'},
        {QLatin1String("euro"), u'\u20ac'},   {QLatin1String("pound"), u'\u00a3'},
        {QLatin1String("rarr"), u'\u2192'},   {QLatin1String("larr"), u'\u2190'},
        {QLatin1String("auml"), u'\u00e4'},   {QLatin1String("ouml"), u'\u00f6'},
        {QLatin1String("uuml"), u'\u00fc'},   {QLatin1String("Auml"), u'\u00c4'},
        {QLatin1String("Ouml"), u'\u00d6'},   {QLatin1String("Uuml"), u'\u00dc'},
        {QLatin1String("szlig"), u'\u00df'},  {QLatin1String("agrave"), u'\u00e0'},
        {QLatin1String("aacute"), u'\u00e1'}, {QLatin1String("acirc"), u'\u00e2'},
        {QLatin1String("ccedil"), u'\u00e7'}, {QLatin1String("egrave"), u'\u00e8'},
        {QLatin1String("eacute"), u'\u00e9'}, {QLatin1String("ecirc"), u'\u00ea'},
        {QLatin1String("iacute"), u'\u00ed'}, {QLatin1String("ntilde"), u'\u00f1'},
        {QLatin1String("oacute"), u'\u00f3'}, {QLatin1String("ocirc"), u'\u00f4'},
        {QLatin1String("uacute"), u'\u00fa'},
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
    m_begin = m_position;
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

QString Lines::raw() const
{
    return rawFrom(0);
}

QString Lines::rawFrom(int column) const
{
    int position = m_begin;
    // The last line may have no end, behind which m_position is nevertheless.
    const int end = std::min(m_position, int(m_text.size()));
    for (int at = 0; at < column && position < end; ++position) {
        const QChar c = m_text.at(position);
        if (c == QLatin1Char('\t'))
            at += tabWidth - at % tabWidth;
        else if (c == QLatin1Char(' '))
            ++at;
        else
            break;
    }
    QString line = m_text.mid(position, m_position - position);
    while (!line.isEmpty() && line.back().isSpace())
        line.chop(1);
    return line;
}

} // namespace ExchangeText
