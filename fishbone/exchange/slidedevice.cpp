// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slidedevice.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QTransform>

#include <cmath>

namespace {

constexpr int dotsPerInch = 96;

/** Turns what a painter does into shapes. */
class SlideEngine : public QPaintEngine
{
public:
    SlideEngine(std::vector<SlideShape> *shapes, const QString *link)
        : QPaintEngine(PrimitiveTransform | PainterPaths | Antialiasing | AlphaBlend |
                       ConstantOpacity | PatternBrush | LinearGradientFill | RadialGradientFill |
                       PaintOutsidePaintEvent)
        , m_shapes(shapes)
        , m_link(link)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &changed) override
    {
        m_transform = changed.transform();
        m_pen = changed.pen();
        m_brush = changed.brush();
        m_opacity = changed.opacity();
    }

    void drawPath(const QPainterPath &path) override { addPath(path, true); }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        if (count < 2)
            return;
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i)
            path.lineTo(points[i]);
        if (mode != PolylineMode)
            path.closeSubpath();
        addPath(path, mode != PolylineMode);
    }

    void drawLines(const QLineF *lines, int count) override
    {
        for (int i = 0; i < count; ++i) {
            QPainterPath path(lines[i].p1());
            path.lineTo(lines[i].p2());
            addPath(path, false);
        }
    }

    /** Pictures of pixels become frames: what the drawing shows of them cannot be edited. */
    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &) override
    {
        QPainterPath path;
        path.addRect(rect);
        addPath(path, false);
    }

    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        if (item.text().trimmed().isEmpty() || m_pen.style() == Qt::NoPen)
            return;
        const double scale = std::hypot(m_transform.m11(), m_transform.m12());
        const double height = item.ascent() + item.descent();
        const QRectF local(position.x(), position.y() - item.ascent(), item.width(), height);
        const QPointF middle = m_transform.map(local.center());
        const QFont font = item.font();
        SlideShape shape;
        shape.text = item.text();
        shape.link = *m_link;
        shape.box = QRectF(0, 0, item.width() * scale, height * scale);
        shape.box.moveCenter(middle);
        shape.angle = std::atan2(m_transform.m12(), m_transform.m11()) * 180 / M_PI;
        // Whatever the font was given in, its lines have that height.
        shape.fontSize =
            height * scale * QFontInfo(font).pixelSize() / QFontMetricsF(font).height();
        shape.family = QFontInfo(font).family();
        shape.isBold = font.bold();
        shape.isItalic = font.italic();
        shape.colour = visible(m_pen.color());
        m_shapes->push_back(shape);
    }

private:
    QColor visible(QColor colour) const
    {
        colour.setAlphaF(colour.alphaF() * m_opacity);
        return colour;
    }

    /** A colour for a brush; of a gradient the one in the middle. */
    QColor colourOf(const QBrush &brush) const
    {
        if (brush.style() == Qt::NoBrush)
            return QColor();
        const QGradient *const gradient = brush.gradient();
        if (!gradient || gradient->stops().isEmpty())
            return visible(brush.color());
        return visible(gradient->stops().at(gradient->stops().size() / 2).second);
    }

    void addPath(const QPainterPath &path, bool mayFill)
    {
        SlideShape shape;
        shape.path = m_transform.map(path);
        shape.fill = mayFill ? colourOf(m_brush) : QColor();
        if (m_pen.style() != Qt::NoPen) {
            const double scale =
                m_pen.isCosmetic() ? 1 : std::sqrt(std::abs(m_transform.determinant()));
            shape.stroke = colourOf(m_pen.brush());
            shape.width = qMax(m_pen.widthF(), m_pen.isCosmetic() ? 1.0 : 0.0) * scale;
            shape.isDashed = m_pen.style() != Qt::SolidLine;
        }
        const bool isSeen = (shape.fill.isValid() && shape.fill.alpha() > 0) ||
                            (shape.stroke.isValid() && shape.stroke.alpha() > 0);
        if (isSeen && !shape.path.isEmpty())
            m_shapes->push_back(shape);
    }

    std::vector<SlideShape> *m_shapes;
    const QString *m_link;
    QTransform m_transform;
    QPen m_pen;
    QBrush m_brush;
    double m_opacity = 1;
};

} // namespace

SlideDevice::SlideDevice(const QSize &size)
    : m_size(size)
    , m_engine(std::make_unique<SlideEngine>(&m_shapes, &m_link))
{
}

SlideDevice::~SlideDevice() = default;

QPaintEngine *SlideDevice::paintEngine() const
{
    return m_engine.get();
}

int SlideDevice::metric(PaintDeviceMetric metric) const
{
    constexpr double millimetresPerInch = 25.4;
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
        return int(m_size.width() * millimetresPerInch / dotsPerInch);
    case PdmHeightMM:
        return int(m_size.height() * millimetresPerInch / dotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}
