// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturepreview.h>

#include <QPainter>
#include <QPixmap>

namespace {

constexpr QSize previewSize(400, 300);

} // namespace

PicturePreview::PicturePreview(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(tr("Preview"));
    setFixedSize(previewSize);
}

void PicturePreview::draw(const QSizeF &paper, const QColor &background, const Paint &paint)
{
    constexpr double marginOfPage = 0.03;
    const double dots = devicePixelRatioF();
    QPixmap pixmap((QSizeF(previewSize) * dots).toSize());
    pixmap.setDevicePixelRatio(dots);
    pixmap.fill(palette().color(QPalette::Window));
    if (!paper.isEmpty()) {
        QRectF sheet(QPointF(0, 0), paper.scaled(previewSize, Qt::KeepAspectRatio));
        sheet.moveCenter(QRectF(QPointF(0, 0), previewSize).center());
        QPainter painter(&pixmap);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (background.alpha() > 0)
            painter.fillRect(sheet, background);
        else
            painter.fillRect(sheet, QBrush(Qt::lightGray, Qt::Dense6Pattern));
        const double margin = marginOfPage * qMin(sheet.width(), sheet.height());
        paint(painter, sheet.adjusted(margin, margin, -margin, -margin));
    }
    setPixmap(pixmap);
}
