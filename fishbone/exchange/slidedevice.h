// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPaintDevice>
#include <QPainterPath>
#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

/** A shape of a slide, in the units of the scene. */
struct SlideShape
{
    QPainterPath path; ///< of a drawn shape; empty for a text
    QColor fill;       ///< invalid for none
    QColor stroke;     ///< invalid for none
    double width = 0;  ///< of the stroke
    bool isDashed = false;

    QString text; ///< of a text box; empty for a drawn shape
    QString link; ///< where the text leads; empty for nowhere
    QRectF box;   ///< around the text before it is turned about the middle
    double angle = 0;
    double fontSize = 0;
    QString family;
    QColor colour;
    bool isBold = false;
    bool isItalic = false;
};

class QPaintEngine;

/** Takes down what is painted on it as shapes that a presentation can edit. */
class SlideDevice : public QPaintDevice
{
public:
    /** A device of @p size units of the scene. */
    explicit SlideDevice(const QSize &size);
    ~SlideDevice() override;

    QPaintEngine *paintEngine() const override;
    /** Texts that are painted from now on lead to @p link. */
    void setLink(const QString &link) { m_link = link; }
    /** What was painted, the undermost first. */
    const std::vector<SlideShape> &shapes() const { return m_shapes; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    const QSize m_size;
    QString m_link;
    std::vector<SlideShape> m_shapes;
    std::unique_ptr<QPaintEngine> m_engine;
};
