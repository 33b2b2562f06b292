// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/svgpicture.h>

#include <fishbone/drawing/describedpicture.h>
#include <fishbone/exchange/darkcolors.h>
#include <fishbone/exchange/linksafety.h>
#include <fishbone/exchange/svgmarkup.h>
#include <fishbone/exchange/svgsymbol.h>

#include <QIODevice>

#include <algorithm>

namespace {
constexpr int bufferSize = 1 << 16;

using SvgMarkup::dashes;
using SvgMarkup::fontOf;
using SvgMarkup::number;
using SvgMarkup::paint;
using SvgMarkup::pathData;
using SvgMarkup::point;

/** As many of @p titles as somebody listens to. */
QString listed(QStringList titles)
{
    constexpr int most = 20;
    if (titles.size() > most) {
        titles.erase(titles.begin() + most, titles.end());
        titles << QStringLiteral("\u2026");
    }
    return titles.join(QStringLiteral("; ")).simplified();
}
} // namespace

QByteArray SvgPicture::escaped(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < int(text.size()); ++i) {
        const QChar c = text.at(i);
        const ushort code = c.unicode();
        if (c.isHighSurrogate() && i + 1 < int(text.size()) && text.at(i + 1).isLowSurrogate()) {
            out += c;
            out += text.at(++i);
        } else if (c.isSurrogate() || code == 0xfffe || code == 0xffff) {
            continue;
        } else if (code < 0x20 || code == 0x7f) {
            out += u' ';
        } else if (c == u'&') {
            out += QLatin1String("&amp;");
        } else if (c == u'<') {
            out += QLatin1String("&lt;");
        } else if (c == u'>') {
            out += QLatin1String("&gt;");
        } else if (c == u'"') {
            out += QLatin1String("&quot;");
        } else if (c == u'\'') {
            out += QLatin1String("&#39;");
        } else {
            out += c;
        }
    }
    return out.toUtf8();
}

bool SvgPicture::write(const DescribedPicture &picture, const SvgPictureOptions &options,
                       QIODevice &device)
{
    SvgPicture writer(device);
    writer.begin(picture, options);
    if (!picture.describe(writer))
        return false;
    writer.put("</svg>\n");
    writer.flush();
    return writer.m_isGood;
}

void SvgPicture::begin(const DescribedPicture &picture, const SvgPictureOptions &options)
{
    m_isPart = options.isPart;
    m_dark = options.dark;
    const qreal m = options.margin;
    const QRectF rect = picture.bounds().adjusted(-m, -m, m, m);
    const QSizeF size = options.size.isEmpty() ? rect.size() : options.size;
    if (!options.isPart)
        put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    put("<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\""
        " version=\"1.1\" viewBox=\"" +
        point(rect.topLeft()) + ' ' + number(rect.width()) + ' ' + number(rect.height()) +
        "\" width=\"" + number(size.width()) + "\" height=\"" + number(size.height()) +
        "\" role=\"" + (options.isPart ? "tree" : "img") +
        "\" stroke-linecap=\"round\" font-family=\"&#39;" + escaped(picture.family()) +
        "&#39;, &#39;Noto Sans&#39;, &#39;Noto Sans CJK SC&#39;, &#39;DejaVu Sans&#39;,"
        " sans-serif\">\n");
    if (!options.title.isEmpty())
        put("<title>" + escaped(options.title) + "</title>\n");
    const QString description =
        options.description.isEmpty() ? listed(picture.categories()) : options.description;
    if (!description.isEmpty())
        put("<desc>" + escaped(description) + "</desc>\n");
    put("<defs>\n");
    const QStringList icons = picture.icons();
    for (const QString &icon : icons)
        defineIcon(icon);
    put("</defs>\n");
    if (options.background.isValid() && options.background.alpha() > 0)
        put("<rect x=\"" + number(rect.x()) + "\" y=\"" + number(rect.y()) + "\" width=\"" +
            number(rect.width()) + "\" height=\"" + number(rect.height()) + '"' +
            paint("fill", options.background) + "/>\n");
}

/** Writes the symbol of an icon, once; what is no drawing that is understood becomes a dot. */
void SvgPicture::defineIcon(const QString &file)
{
    if (file.isEmpty() || m_icons.contains(file))
        return;
    const QByteArray id = "icon" + QByteArray::number(m_icons.size());
    m_icons.insert(file, id);
    m_ids.insert(id);
    put("<symbol id=\"" + id + '"' + SvgSymbol(file).markup() + "</symbol>\n");
}

void SvgPicture::put(const QByteArray &bytes)
{
    m_buffer += bytes;
    if (m_buffer.size() > bufferSize)
        flush();
}

void SvgPicture::flush()
{
    m_isGood = m_isGood && m_device.write(m_buffer) == m_buffer.size();
    m_buffer.clear();
}

/** An id that no other part of the file has: what is wanted, if it will do. */
QByteArray SvgPicture::idOf(int index, const QString &wanted)
{
    QByteArray id = "s";
    for (const QChar c : wanted.left(64)) {
        const bool isPlain = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') ||
                             (c >= u'0' && c <= u'9') || c == u'-';
        if (isPlain)
            id += char(c.unicode());
    }
    if (id.size() == 1 || m_ids.contains(id))
        id = "n" + QByteArray::number(index);
    m_ids.insert(id);
    return id;
}

void SvgPicture::beginSubject(int index, const PictureSubject &subject)
{
    m_link = LinkSafety::webOrMail(subject.link);
    put("<g id=\"" + idOf(index, subject.id) + '"' + (m_isPart ? roleOf(subject) : QByteArray()) +
        '>');
}

/** What a page knows of a subject. */
QByteArray SvgPicture::roleOf(const PictureSubject &subject)
{
    QByteArray out = " role=\"treeitem\" tabindex=\"";
    out += subject.parent < 0 ? "0\"" : "-1\" data-p=\"" + QByteArray::number(subject.parent) + '"';
    const QByteArray title = escaped(subject.title);
    const QByteArray state = subject.state.isEmpty() ? QByteArray() : ", " + escaped(subject.state);
    return out + " aria-level=\"" + QByteArray::number(subject.level + 1) + "\" data-title=\"" +
           title + "\" aria-label=\"" + title + state + '"';
}

void SvgPicture::endSubject()
{
    if (m_hasOpenLink)
        put("</a>");
    m_hasOpenLink = false;
    m_link.clear();
    put("</g>\n");
}

/** What follows of the subject leads to its link. */
void SvgPicture::openLink()
{
    if (m_link.isEmpty())
        return;
    put("<a xlink:href=\"" + escaped(m_link) + "\" target=\"_blank\"" +
        (m_isPart ? " rel=\"noopener noreferrer\" tabindex=\"-1\">" : ">"));
    m_link.clear();
    m_hasOpenLink = true;
}

/** The class of the next element that is drawn. */
QByteArray SvgPicture::elementClass()
{
    const QByteArray name = m_dark ? m_dark->classOf(m_elements) : QByteArray();
    ++m_elements;
    return name.isEmpty() ? QByteArray() : " class=\"" + name + '"';
}

void SvgPicture::line(const QLineF &line, const QPen &pen)
{
    const QByteArray look = elementClass();
    if (pen.style() == Qt::NoPen)
        return;
    const qreal width = std::max(pen.widthF(), 1.0);
    put("<path d=\"M" + point(line.p1()) + 'L' + point(line.p2()) + '"' + look +
        paint("stroke", pen.color()) + " stroke-width=\"" + number(width) + '"' + dashes(pen) +
        "/>");
}

void SvgPicture::shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
                       qreal width)
{
    QByteArray out = "<path d=\"" + pathData(path) + '"' + elementClass() + paint("fill", fill);
    if (width > 0)
        out += paint("stroke", outline) + " stroke-width=\"" + number(width) + '"';
    put(out + "/>\n");
}

void SvgPicture::box(const QRectF &rect, qreal radius, const QColor &fill)
{
    put("<rect x=\"" + number(rect.x()) + "\" y=\"" + number(rect.y()) + "\" width=\"" +
        number(rect.width()) + "\" height=\"" + number(rect.height()) + "\" rx=\"" +
        number(radius) + '"' + elementClass() + paint("fill", fill) + "/>");
}

void SvgPicture::text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
                      const QColor &color)
{
    openLink();
    const bool isReversed = text.isRightToLeft();
    // Where the text meets its bone it stays in place whatever the font.
    const char *anchor = side == ClearLabel::Side::Center                  ? "middle"
                         : (side == ClearLabel::Side::Right) != isReversed ? "end"
                                                                           : nullptr;
    QByteArray attributes = elementClass() + fontOf(text.font()) + paint("fill", color);
    if (anchor)
        attributes += QByteArray(" text-anchor=\"") + anchor + '"';
    if (isReversed)
        attributes += " direction=\"rtl\"";
    for (int line = 0; line < text.lineCount(); ++line) {
        const ClearText::Line &each = text.lines()[std::size_t(line)];
        if (each.text.isEmpty())
            continue;
        QPointF base = ClearLabel::base(text, rect, side, line);
        if (side == ClearLabel::Side::Center)
            base.rx() += each.width / 2;
        else if (side == ClearLabel::Side::Right)
            base.rx() += each.width;
        put("<text x=\"" + number(base.x()) + "\" y=\"" + number(base.y()) + '"' + attributes +
            " textLength=\"" + number(each.width) + "\" lengthAdjust=\"spacingAndGlyphs\">" +
            escaped(each.text) + "</text>");
    }
}

void SvgPicture::icon(const QRectF &rect, const QString &file)
{
    const QByteArray id = m_icons.value(file);
    if (id.isEmpty())
        return;
    put("<use xlink:href=\"#" + id + "\" x=\"" + number(rect.x()) + "\" y=\"" + number(rect.y()) +
        "\" width=\"" + number(rect.width()) + "\" height=\"" + number(rect.height()) + "\"/>");
}
