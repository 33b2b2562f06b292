// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearcolors.h>
#include <fishbone/drawing/clearlayout.h>
#include <fishbone/drawing/clearpieces.h>
#include <fishbone/drawing/describedpicture.h>
#include <fishbone/drawing/picturesink.h>

#include <vector>

/** All that is drawn of a diagram, and what a file says of it besides. */
struct ClearPictureContent
{
    std::vector<ClearSubject> subjects;
    std::vector<PictureSubject> meanings; ///< one a subject
    std::vector<ClearSubjectLook> looks;  ///< one a subject
    std::vector<ClearMeaning> symbols;    ///< what the legend explains
    QString linkIcon;                     ///< the resource of the link icon

    /** The texts of the legend. */
    std::vector<QString> legendTexts() const;
};

/** Describes a diagram that is laid out. */
class ClearPicture : public DescribedPicture
{
public:
    /** The picture of @p content as @p layout has it; both live on. */
    ClearPicture(const ClearPictureContent &content, const ClearLayout &layout,
                 const ClearFonts &fonts, const ClearColors &colors);

    const ClearColors &colors() const { return m_colors; }
    const ClearPictureContent &content() const { return m_content; }

    /** The same picture in other colours, which nobody follows. */
    ClearPicture inColors(const ClearColors &colors) const
    {
        return {m_content, m_layout, m_fonts, colors};
    }

    QRectF bounds() const override { return m_layout.bounds(); }
    QString family() const override;
    QStringList icons() const override;
    QStringList categories() const override;
    int count() const override { return m_layout.size(); }
    bool describe(PictureSink &sink) const override;

private:
    void describeBone(PictureSink &sink, int index) const;

    const ClearPictureContent &m_content;
    const ClearLayout &m_layout;
    ClearFonts m_fonts;
    ClearColors m_colors;
    std::vector<ClearInk> m_inks;
};
