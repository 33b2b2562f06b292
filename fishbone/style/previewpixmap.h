// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>

/** A white pixmap of @p size in device-independent pixels, sharp on a screen of that @p ratio. */
inline QPixmap previewPixmap(const QSize &size, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    return pixmap;
}
