// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleartextbreaker.h>

#include <QChar>
#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>

namespace {
constexpr qreal unlimited = 1200;  ///< even a text without limit is cut there
constexpr qreal longestWord = 200; ///< where lines may get wider, words are kept whole up to here
constexpr int longestTitle = 4000; ///< characters that are looked at
constexpr int searchSteps = 16;
constexpr int mostOwnLines = 8; ///< of a title that breaks its lines itself or must not be cut
const QChar ellipsis(0x2026);

QString cleaned(const QString &title)
{
    QString text = title.left(longestTitle);
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &c : text) {
        if (c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u'\n';
        else if (c.category() == QChar::Other_Control && c != u'\n')
            c = u' ';
    }
    while (!text.isEmpty() && text.at(text.size() - 1).isSpace())
        text.chop(1);
    const auto first =
        std::find_if(text.cbegin(), text.cend(), [](QChar c) { return !c.isSpace(); });
    return text.mid(int(first - text.cbegin()));
}

/** Whether lines may be broken beside @p c though no space is there. */
bool isIdeographic(QChar c)
{
    const ushort code = c.unicode();
    return (code >= 0x2e80 && code <= 0xd7ff) || (code >= 0xf900 && code <= 0xfaff) ||
           (code >= 0xfe30 && code <= 0xfe4f) || (code >= 0xff00 && code <= 0xffef) ||
           (code >= 0xd840 && code <= 0xd8ff) || (code >= 0xdc00 && code <= 0xdfff); // rare ones
}

bool isUnitSign(QChar c)
{
    return c == u'%' || c == QChar(0x2030) || c == QChar(0xb0); // per mille, degrees
}

/** Whether the word from @p start on stays with what is before the space: a sign of a unit, or a
 * letter or two that are one behind a number. */
bool isUnit(const QString &title, int start)
{
    static const QStringList units{QStringLiteral("ms"), QStringLiteral("mm"), QStringLiteral("cm"),
                                   QStringLiteral("km"), QStringLiteral("kg"), QStringLiteral("kW"),
                                   QStringLiteral("Hz"), QStringLiteral("kB"), QStringLiteral("MB"),
                                   QStringLiteral("GB"), QStringLiteral("TB")};
    if (isUnitSign(title.at(start)))
        return true;
    if (start < 2 || !title.at(start - 2).isDigit())
        return false;
    int end = start;
    while (end < title.size() && title.at(end).isLetterOrNumber() && end < start + 3)
        ++end;
    return (end == start + 1 && title.at(start).isLetter()) ||
           units.contains(title.mid(start, end - start));
}

bool isInnerBreak(QChar c)
{
    return c == u'-' || c == u'/' || c == u'_' || c == u'.' || c == u'\\';
}
} // namespace

ClearTextBreaker::ClearTextBreaker(const QString &title, const ClearFont &font,
                                   QHash<QString, qreal> &widths)
    : m_title(cleaned(title))
    , m_font(font)
    , m_widths(widths)
{
    collectPieces();
}

qreal ClearTextBreaker::widthOf(int start, int end)
{
    if (start >= end)
        return 0;
    const QString word = m_title.mid(start, end - start);
    const auto known = m_widths.constFind(word);
    if (known != m_widths.cend())
        return *known;
    const qreal width = QFontMetricsF(m_font.font(), ClearFont::device()).horizontalAdvance(word);
    m_widths.insert(word, width);
    return width;
}

void ClearTextBreaker::addPiece(int start, int end, int next, bool endsLine)
{
    m_pieces.push_back({start, end, widthOf(start, end), widthOf(end, next), endsLine});
}

void ClearTextBreaker::collectPieces()
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, m_title);
    const int size = int(m_title.size());
    int start = 0;
    while (start < size || (start == size && m_pieces.empty())) {
        int next = int(finder.toNextBoundary());
        if (next < 0 || next > size)
            next = size;
        const QChar before = next > 0 ? m_title.at(next - 1) : QChar();
        const bool canBreak = next >= size ||
                              (before.isSpace() && (before == u'\n' || !isUnit(m_title, next))) ||
                              isIdeographic(before) || isIdeographic(m_title.at(next));
        if (!canBreak)
            continue;
        int end = next;
        while (end > start && m_title.at(end - 1).isSpace())
            --end;
        const bool endsLine = next > start && m_title.at(next - 1) == u'\n';
        const int spaces = endsLine ? end : next; // at the end of a line they have no width
        addPiece(start, end, spaces, endsLine);
        start = next;
        if (next >= size)
            break;
    }
}

/** Splits what is wider than @p limit. */
void ClearTextBreaker::splitPieces(qreal limit)
{
    const auto isWide = [=](const Piece &piece) { return piece.width > limit; };
    if (std::none_of(m_pieces.cbegin(), m_pieces.cend(), isWide))
        return;
    std::vector<Piece> out;
    for (const Piece &piece : std::as_const(m_pieces)) {
        if (isWide(piece))
            splitPiece(piece, limit, out);
        else
            out.push_back(piece);
    }
    m_pieces = std::move(out);
}

/** Splits @p piece where its parts meet, and where that does not do anywhere between two
 * characters. */
void ClearTextBreaker::splitPiece(const Piece &piece, qreal limit, std::vector<Piece> &out)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, m_title);
    const auto put = [&](int start, int end) {
        const bool isLast = end == piece.end;
        out.push_back(
            {start, end, widthOf(start, end), isLast ? piece.space : 0, isLast && piece.endsLine});
    };
    const auto putCharacters = [&](int start, int end) {
        finder.setPosition(start);
        int from = start;
        qreal width = 0;
        for (int at = start; at < end;) {
            int next = int(finder.toNextBoundary());
            next = next < 0 ? end : std::min(next, end);
            const qreal one = widthOf(at, next);
            if (width + one > limit && from < at) {
                put(from, at);
                from = at;
                width = 0;
            }
            width += one;
            at = next;
        }
        put(from, end);
    };
    int from = piece.start;
    for (int at = piece.start + 1; at <= piece.end; ++at) {
        if (at < piece.end && !isInnerBreak(m_title.at(at - 1)))
            continue;
        if (widthOf(from, at) > limit)
            putCharacters(from, at);
        else
            put(from, at);
        from = at;
    }
}

/** How many lines of @p width the text takes from piece @p first on; counts no further than one
 * beyond @p atMost. */
int ClearTextBreaker::countLines(qreal width, int atMost, std::size_t first) const
{
    int lines = 1;
    qreal used = -1; // nothing on the line yet
    for (std::size_t i = first; i < m_pieces.size(); ++i) {
        const Piece &piece = m_pieces[i];
        if (used >= 0 && used + piece.width > width) {
            if (++lines > atMost)
                return lines;
            used = -1;
        }
        used = std::max<qreal>(used, 0) + piece.width + piece.space;
        if (piece.endsLine && i + 1 < m_pieces.size()) {
            if (++lines > atMost)
                return lines;
            used = -1;
        }
    }
    return lines;
}

/** The smallest width, up to @p widest, at which the text still takes only @p lines. */
qreal ClearTextBreaker::narrowest(qreal widest, int lines) const
{
    qreal low = 0;
    qreal high = widest;
    for (int step = 0; step < searchSteps && high - low > 0.1; ++step) {
        const qreal middle = (low + high) / 2;
        if (countLines(middle, lines) <= lines)
            high = middle;
        else
            low = middle;
    }
    return high;
}

ClearText::Line ClearTextBreaker::lineOf(int start, int end) const
{
    ClearText::Line line;
    line.text = m_title.mid(start, end - start);
    line.width = QFontMetricsF(m_font.font(), ClearFont::device()).horizontalAdvance(line.text);
    return line;
}

/** Whether a line that ends with @p piece parts what may well be one word: nothing but characters
 * that need no space says where one ends. */
bool ClearTextBreaker::isPartedAfter(std::size_t piece) const
{
    if (piece + 1 >= m_pieces.size() || m_pieces[piece].endsLine || m_pieces[piece].space > 0)
        return false;
    const QChar before = m_title.at(m_pieces[piece].end - 1);
    const QChar after = m_title.at(m_pieces[piece + 1].start);
    return isIdeographic(before) && !before.isPunct() && isIdeographic(after);
}

/** With which piece a line ends that could take those from @p first to @p last: an earlier one when
 * that parts nothing, leaves no short line and @p linesLeft lines for the rest do. */
std::size_t ClearTextBreaker::betterLast(std::size_t first, std::size_t last, qreal width,
                                         int linesLeft) const
{
    if (!isPartedAfter(last))
        return last;
    std::size_t end = last;
    while (end > first && isPartedAfter(end))
        --end;
    qreal used = 0;
    for (std::size_t i = first; i <= end; ++i)
        used += m_pieces[i].width + m_pieces[i].space;
    const bool isBetter = !isPartedAfter(end) && used >= width / 2 &&
                          countLines(width, linesLeft, end + 1) <= linesLeft;
    return isBetter ? end : last;
}

std::vector<ClearText::Line> ClearTextBreaker::linesWithin(qreal width, int atMost, bool &isCut)
{
    std::vector<ClearText::Line> lines;
    std::size_t first = 0;
    isCut = false;
    while (first < m_pieces.size()) {
        std::size_t last = first;
        qreal used = m_pieces[first].width;
        while (last + 1 < m_pieces.size() && !m_pieces[last].endsLine) {
            const qreal wider = used + m_pieces[last].space + m_pieces[last + 1].width;
            if (wider > width)
                break;
            used = wider;
            ++last;
        }
        isCut = int(lines.size()) + 1 == atMost && last + 1 < m_pieces.size();
        if (isCut) {
            lines.push_back(cutLine(m_pieces[first].start, m_pieces[last].end, width));
            break;
        }
        last = betterLast(first, last, width, atMost - int(lines.size()) - 1);
        lines.push_back(lineOf(m_pieces[first].start, m_pieces[last].end));
        first = last + 1;
    }
    return lines;
}

/** The line from @p start to @p end, behind which an ellipsis stands for the rest; what still fits
 * is taken in. */
ClearText::Line ClearTextBreaker::cutLine(int start, int end, qreal width) const
{
    constexpr int more = 200;
    const QFontMetricsF metrics(m_font.font(), ClearFont::device());
    QString text = m_title.mid(start, end - start + more);
    if (const int lineBreak = int(text.indexOf(u'\n')); lineBreak >= 0)
        text.truncate(lineBreak);
    text =
        metrics.elidedText(text + ellipsis, Qt::ElideRight, std::max(width, m_font.pixels() * 2));
    return {text, metrics.horizontalAdvance(text)};
}

/** How many lines the title has of its own. */
int ClearTextBreaker::ownLines() const
{
    const auto breaks = std::count_if(m_pieces.cbegin(), m_pieces.cend(),
                                      [](const Piece &piece) { return piece.endsLine; });
    return std::min(int(breaks) + 1, mostOwnLines);
}

std::shared_ptr<const ClearText> ClearTextBreaker::broken(const ClearWrap &wrap)
{
    const qreal limit = wrap.limit > 0 ? wrap.limit : unlimited;
    splitPieces(wrap.widens ? std::max(limit, longestWord) : limit);
    int allowed = std::max(wrap.lines, ownLines());
    qreal width = limit;
    if (wrap.widens && countLines(limit, allowed) > allowed)
        width = std::max(limit, wrap.widest);
    if (wrap.widens)
        allowed = std::max(allowed, std::min(countLines(width, mostOwnLines), mostOwnLines));
    const int lines = countLines(width, allowed);
    if (lines <= allowed)
        width = narrowest(std::max(width, longestWord), lines);
    bool isCut = false;
    std::vector<ClearText::Line> result = linesWithin(width, std::min(lines, allowed), isCut);
    return std::make_shared<ClearText>(m_font, std::move(result), m_title.isRightToLeft(), isCut);
}
