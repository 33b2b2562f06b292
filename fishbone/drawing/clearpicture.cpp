// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpicture.h>

#include <QFontMetricsF>

#include <algorithm>

namespace {
constexpr qreal boxRadius = 4;
constexpr int legendLevel = 3; ///< as quiet as the deeper causes
constexpr qreal fishLine = 1.5;
constexpr qreal ring = 1.5; ///< of paper around an icon on a coloured box
constexpr qreal backgroundPadding = 2;

qreal lineWidth(int level)
{
    return level == 1 ? 2.2 : level == 2 ? 1.2 : 1;
}

QPainterPath closed(const QPolygonF &polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}
} // namespace

ClearPicture::ClearPicture(const ClearPictureContent &content, const ClearLayout &layout,
                           const ClearFonts &fonts, const ClearColors &colors)
    : m_content(content)
    , m_layout(layout)
    , m_fonts(fonts)
    , m_colors(colors)
{
    for (int index = 0; index < layout.size(); ++index) {
        const ClearLayout::Bone &bone = layout.bone(index);
        if (bone.level != 1)
            continue;
        const QColor own = content.looks[std::size_t(index)].colour;
        m_categoryColors.push_back(own.isValid() ? own : colors.category(bone.category));
    }
}

QColor ClearPicture::colorOf(int index) const
{
    const int category = m_layout.bone(index).category;
    return category < 0 ? m_colors.outline() : m_categoryColors[std::size_t(category)];
}

void ClearPicture::describe(PictureSink &sink) const
{
    if (m_layout.size() == 0)
        return;
    describeFish(sink);
    for (int index = 0; index < m_layout.size(); ++index)
        describeBone(sink, index);
    describeLegend(sink);
}

void ClearPicture::describeFish(PictureSink &sink) const
{
    sink.shape(closed(m_layout.backbone()), m_colors.backbone(), QColor(), 0);
    sink.shape(m_layout.tail(), m_colors.tail(), m_colors.outline(), fishLine);
}

void ClearPicture::describeBone(PictureSink &sink, int index) const
{
    const ClearLayout::Bone &bone = m_layout.bone(index);
    const ClearSubjectLook &look = m_content.looks[std::size_t(index)];
    const QColor color = colorOf(index);
    sink.beginSubject(index, m_content.meanings[std::size_t(index)]);
    QColor below = m_colors.paper();
    if (index == 0) {
        below = m_colors.head();
        sink.shape(m_layout.head(), below, m_colors.outline(), fishLine);
    } else {
        sink.line(bone.line, color, lineWidth(bone.level));
    }
    if (bone.level == 1) {
        below = color;
        sink.box(bone.box, boxRadius, below);
    }
    if (look.background.isValid() && look.background.alpha() > 0) {
        below = look.background;
        const qreal p = backgroundPadding;
        sink.box(bone.textRect.adjusted(-p, 0, p, 0), p, below);
    }
    describeLabel(sink, index, below);
    sink.endSubject();
}

void ClearPicture::describeLabel(PictureSink &sink, int index, const QColor &below) const
{
    const ClearLayout::Bone &bone = m_layout.bone(index);
    const ClearSubjectLook &look = m_content.looks[std::size_t(index)];
    QColor ink = look.ink;
    if (!ink.isValid())
        ink = bone.level == 1 || below != m_colors.paper() ? ClearColors::inkOn(below)
                                                           : m_colors.ink(bone.level);
    sink.text(*bone.text, bone.textRect, bone.side, ink);
    for (const QRectF &rect : {bone.status, bone.link}) {
        if (rect.isNull())
            continue;
        if (bone.level == 1) // an icon in the colour of the box shows all the same
            sink.box(rect.adjusted(-ring, -ring, ring, ring), rect.width() / 2 + ring, Qt::white);
        sink.icon(rect, rect == bone.status ? look.icon : m_content.linkIcon);
    }
    if (bone.badge.isNull())
        return;
    const int hidden = m_content.subjects[std::size_t(index)].hidden;
    const QString count = u'+' + QString::number(hidden);
    const ClearFont &font = m_fonts.badge();
    const qreal width = QFontMetricsF(font.font(), ClearFont::device()).horizontalAdvance(count);
    const ClearText text(font, {{count, width}}, false, false);
    QRectF rect(0, 0, width, text.height());
    rect.moveCenter(bone.badge.center());
    sink.box(bone.badge, bone.badge.height() / 2, m_colors.badge());
    sink.text(text, rect, ClearLabel::Side::Center, m_colors.badgeInk());
}

void ClearPicture::describeLegend(PictureSink &sink) const
{
    const std::vector<ClearLegend::Entry> &entries = m_layout.legend();
    const std::size_t count = std::min(entries.size(), m_content.legendIcons.size());
    for (std::size_t i = 0; i < count; ++i) {
        sink.icon(entries[i].symbol, m_content.legendIcons[i]);
        sink.text(*entries[i].text, entries[i].textRect, ClearLabel::Side::Left,
                  m_colors.ink(legendLevel));
    }
}
