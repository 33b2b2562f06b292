// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPixmap>

/** A pixmap of @p size in device-independent pixels, filled with @p background and sharp on a
 * screen of that @p ratio. */
inline QPixmap previewPixmap(const QSize &size, qreal ratio, const QColor &background)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(background);
    return pixmap;
}
