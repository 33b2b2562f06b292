// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/picturesink.h>

#include <QList>
#include <QRectF>

/** Collects where a drawing has texts and what stands beside them. */
class PictureTexts : public PictureSink
{
public:
    /** One for each text and icon; for the two of one label, one each. */
    const QList<QRectF> &rects() const { return m_rects; }

    void beginSubject(int, const PictureSubject &) override {}
    void endSubject() override {}
    void line(const QLineF &, const QPen &) override {}
    void shape(const QPainterPath &, const QColor &, const QColor &, qreal) override {}
    void box(const QRectF &rect, qreal, const QColor &) override { m_rects.append(rect); }
    void text(const ClearText &, const QRectF &rect, ClearLabel::Side, const QColor &) override
    {
        m_rects.append(rect);
    }
    void icon(const QRectF &rect, const QString &) override { m_rects.append(rect); }

private:
    QList<QRectF> m_rects;
};
