// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturepreview.h>

#include <QPainter>
#include <QPixmap>

namespace {

constexpr QSize usualSize(400, 300);
constexpr QSize leastSize(200, 150);

} // namespace

PicturePreview::PicturePreview(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(tr("Preview"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    resize(usualSize); // what is drawn before it has its place needs no second time, mostly
}

QSize PicturePreview::sizeHint() const
{
    return usualSize;
}

QSize PicturePreview::minimumSizeHint() const
{
    return leastSize;
}

void PicturePreview::draw(const QSizeF &paper, const QColor &background, const Paint &paint)
{
    m_paper = paper;
    m_background = background;
    m_paint = paint;
    drawAgain();
}

void PicturePreview::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    if (m_paint)
        drawAgain();
}

void PicturePreview::drawAgain()
{
    constexpr double marginOfPage = 0.03;
    const double dots = devicePixelRatioF();
    QPixmap pixmap((QSizeF(size()) * dots).toSize());
    pixmap.setDevicePixelRatio(dots);
    pixmap.fill(palette().color(QPalette::Window));
    if (!m_paper.isEmpty()) {
        QRectF sheet(QPointF(0, 0), m_paper.scaled(size(), Qt::KeepAspectRatio));
        sheet.moveCenter(QRectF(QPointF(0, 0), size()).center());
        QPainter painter(&pixmap);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (m_background.alpha() > 0)
            painter.fillRect(sheet, m_background);
        else
            painter.fillRect(sheet, QBrush(Qt::lightGray, Qt::Dense6Pattern));
        const double margin = marginOfPage * qMin(sheet.width(), sheet.height());
        m_paint(painter, sheet.adjusted(margin, margin, -margin, -margin));
    }
    setPixmap(pixmap);
}
