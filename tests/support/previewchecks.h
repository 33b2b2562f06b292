// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QWidget>

namespace TestSupport {

/** The picture that a label of the window shows. */
inline QPixmap shownPixmap(const QWidget &window)
{
    const auto labels = window.findChildren<QLabel *>();
    for (const QLabel *const label : labels) {
        const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
        if (!pixmap.isNull())
            return pixmap;
    }
    return {};
}

/** How many pixels of a picture have exactly that colour. */
inline int pixelsOf(const QPixmap &pixmap, const QColor &color)
{
    const QImage image = pixmap.toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    }
    return count;
}

/** How many pixels of a picture are not the colour of the paper. */
inline int inkedPixels(const QPixmap &pixmap)
{
    return pixmap.width() * pixmap.height() - pixelsOf(pixmap, Qt::white);
}

/** A window on a screen with twice as many pixels in each direction. */
template <typename Window>
class OnDenseScreen : public Window
{
public:
    using Window::Window;

protected:
    int metric(QPaintDevice::PaintDeviceMetric which) const override
    {
        switch (which) {
        case QPaintDevice::PdmDevicePixelRatio:
            return 2;
        case QPaintDevice::PdmDevicePixelRatioScaled:
            return int(2 * QPaintDevice::devicePixelRatioFScale());
        default:
            return Window::metric(which);
        }
    }
};

} // namespace TestSupport
