// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pictureprogress.h>

#include <algorithm>

bool PictureProgress::goesOn(int done)
{
    m_done = std::max(m_done, done);
    if (m_options.progress && !m_isCancelled)
        m_isCancelled = !m_options.progress(m_done, m_steps);
    return !m_isCancelled;
}

PictureExport::Result PictureProgress::outcome(bool isComplete) const
{
    if (m_isCancelled)
        return {PictureExport::Error::Cancelled, PictureExport::tr("it was cancelled")};
    return isComplete ? PictureExport::Result()
                      : PictureExport::Result{PictureExport::Error::CannotWrite,
                                              PictureExport::tr("the drawing cannot be encoded")};
}

PictureExport::Result PictureProgress::finish()
{
    goesOn(m_steps);
    return outcome(true);
}

QImage::Format PictureBytes::formatOn(const QColor &background)
{
    // Without an alpha channel there is a quarter less to compress.
    const bool isOpaque = background.isValid() && background.alpha() == 255;
    return isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
}

bool PictureBytes::savePng(const QImage &image)
{
    constexpr int quality = 89; // the lightest compression: a drawing is small, and this is fast
    return image.save(this, "PNG", quality);
}
