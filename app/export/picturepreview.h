// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QLabel>
#include <QSizeF>

#include <functional>

/** Shows what becomes of a picture, small, on its paper, as large as there is room. */
class PicturePreview : public QLabel
{
    Q_OBJECT

public:
    /** Paints the picture into the target. */
    using Paint = std::function<void(QPainter &painter, const QRectF &target)>;

    explicit PicturePreview(QWidget *parent = nullptr);

    /** Shows what @p paint paints on paper of the proportions of @p paper, in @p background, which
     * may be transparent. Nothing for an empty @p paper. It is painted again when the room
     * changes. */
    void draw(const QSizeF &paper, const QColor &background, const Paint &paint);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void drawAgain();

    QSizeF m_paper;
    QColor m_background;
    Paint m_paint;
};
