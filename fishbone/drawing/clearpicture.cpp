// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpicture.h>

std::vector<QString> ClearPictureContent::legendTexts() const
{
    std::vector<QString> texts;
    texts.reserve(symbols.size());
    for (const ClearMeaning &symbol : symbols)
        texts.push_back(symbol.text);
    return texts;
}

ClearPicture::ClearPicture(const ClearPictureContent &content, const ClearLayout &layout,
                           const ClearFonts &fonts, const ClearColors &colors)
    : m_content(content)
    , m_layout(layout)
    , m_fonts(fonts)
    , m_colors(colors)
{
    m_inks.reserve(std::size_t(layout.size()));
    for (int index = 0; index < layout.size(); ++index) {
        const ClearLayout::Bone &bone = layout.bone(index);
        const int parent = content.subjects[std::size_t(index)].parent;
        m_inks.push_back(ClearInk::of(content.looks[std::size_t(index)], bone.level, bone.category,
                                      parent < 0 ? QColor() : m_inks[std::size_t(parent)].colour,
                                      colors));
    }
}

QString ClearPicture::family() const
{
    return m_fonts.ofLevel(2).font().family();
}

QStringList ClearPicture::icons() const
{
    QStringList files;
    for (const ClearSubjectLook &look : m_content.looks)
        files << look.icon;
    for (const ClearMeaning &symbol : m_content.symbols)
        files << symbol.icon;
    return files << m_content.linkIcon;
}

QStringList ClearPicture::categories() const
{
    QStringList titles;
    for (const ClearSubject &subject : m_content.subjects) {
        if (subject.parent == 0)
            titles << subject.title;
    }
    return titles;
}

bool ClearPicture::describe(PictureSink &sink) const
{
    if (m_layout.size() == 0)
        return true;
    ClearPieces::fish(sink, m_layout.backbone(), m_layout.tail(), m_colors);
    for (int index = 0; index < m_layout.size(); ++index) {
        if (!goesOn(index))
            return false;
        describeBone(sink, index);
    }
    ClearPieces::legend(sink, m_layout.legend(), m_content.symbols, m_colors);
    return true;
}

void ClearPicture::describeBone(PictureSink &sink, int index) const
{
    const ClearLayout::Bone &bone = m_layout.bone(index);
    const ClearInk &ink = m_inks[std::size_t(index)];
    sink.beginSubject(index, m_content.meanings[std::size_t(index)]);
    if (index == 0)
        ClearPieces::head(sink, m_layout.head(), ink, m_colors);
    else
        sink.line(bone.line, ink.line);
    ClearPieces::label(sink, bone, ink, m_colors);
    if (!bone.status.isNull())
        sink.icon(bone.status, m_content.looks[std::size_t(index)].icon);
    if (!bone.link.isNull())
        sink.icon(bone.link, m_content.linkIcon);
    if (bone.badgeText)
        ClearPieces::badge(sink, *bone.badgeText, bone.badge, m_colors);
    sink.endSubject();
}
