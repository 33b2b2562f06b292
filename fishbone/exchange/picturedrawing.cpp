// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/picturedrawing.h>

#include <fishbone/exchange/pictureexport.h>

#include <QPainter>

namespace {

bool fills(const QColor &background)
{
    return background.isValid() && background.alpha() > 0;
}

} // namespace

bool PictureDrawing::paint(QPainter &painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    if (fills(m_options.background))
        painter.fillRect(QRectF(QPointF(), m_frame.size), m_options.background);
    return painterOfItems().paint(painter, [this](int done) { return m_progress.goesOn(done); });
}

void PictureDrawing::paintSample(QPainter &painter, int step) const
{
    ScenePainter items = painterOfItems();
    items.setStep(step);
    items.paint(painter, [](int) { return true; });
}
