// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearcolors.h>
#include <fishbone/drawing/clearlayout.h>
#include <fishbone/drawing/picturesink.h>

#include <vector>

/** How a subject differs from what its place in the diagram gives it. */
struct ClearSubjectLook
{
    QString icon;      ///< the resource of its status icon; empty without one
    QColor ink;        ///< its own colour of text; invalid for that of its level
    QColor background; ///< its own colour behind the text; invalid for none
    QColor colour;     ///< a category's own colour; invalid for the palette's
};

/** All that is drawn of a diagram, and what a file says of it besides. */
struct ClearPictureContent
{
    std::vector<ClearSubject> subjects;
    std::vector<PictureSubject> meanings; ///< one a subject
    std::vector<ClearSubjectLook> looks;  ///< one a subject
    std::vector<QString> legendIcons;     ///< the icons in use, each once
    std::vector<QString> legendTexts;     ///< what they mean
    QString linkIcon;                     ///< the resource of the link icon
};

/** Describes a diagram that is laid out, piece by piece, in the order in which it is drawn. */
class ClearPicture
{
public:
    /** The picture of @p content as @p layout has it; both live on. */
    ClearPicture(const ClearPictureContent &content, const ClearLayout &layout,
                 const ClearFonts &fonts, const ClearColors &colors);

    /** What it covers. */
    const QRectF &bounds() const { return m_layout.bounds(); }
    const ClearColors &colors() const { return m_colors; }
    const ClearFonts &fonts() const { return m_fonts; }
    const ClearPictureContent &content() const { return m_content; }

    /** Describes all of it to @p sink. Linear. */
    void describe(PictureSink &sink) const;

private:
    void describeFish(PictureSink &sink) const;
    void describeBone(PictureSink &sink, int index) const;
    void describeLabel(PictureSink &sink, int index, const QColor &below) const;
    void describeLegend(PictureSink &sink) const;
    QColor colorOf(int index) const;

    const ClearPictureContent &m_content;
    const ClearLayout &m_layout;
    ClearFonts m_fonts;
    ClearColors m_colors;
    std::vector<QColor> m_categoryColors;
};
