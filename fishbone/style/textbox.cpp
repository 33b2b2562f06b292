// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/textbox.h>

#include <QPainter>

namespace {
constexpr qreal cornerRoundness = 5; ///< per cent of half the box's width and height
} // namespace

void paintTextBox(QPainter &painter, const QRectF &box, const QRectF &exposed, const QColor &fill,
                  const QPen &frame)
{
    painter.save();
    if (fill.isValid())
        painter.fillRect(exposed & box, fill);
    // The frame stays inside the box, half its pen on either side of the outline, so that no
    // partial repaint can leave a piece of it behind. A wider pen than this fills the box.
    const QRectF whole = QRectF(box.toRect()) & box;
    QPen pen(frame);
    pen.setWidthF(qMin(pen.widthF(), qMin(whole.width(), whole.height()) / 2));
    const qreal inset = qMax<qreal>(pen.widthF(), 1) / 2;
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(whole.adjusted(inset, inset, -inset, -inset), cornerRoundness,
                            cornerRoundness, Qt::RelativeSize);
    painter.restore();
}
