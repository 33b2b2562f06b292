// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/viewframing.h>

#include <cmath>
#include <limits>

#include <QGraphicsView>
#include <QPointer>
#include <QTransform>

namespace {

void give(QGraphicsView &view, const QTransform &matrix)
{
    // Inverted rather than asked: isInvertible() gives up on scales that a view still copes with.
    bool isInvertible = false;
    static_cast<void>(matrix.inverted(&isInvertible));
    // The square of the scale, so that neither the matrix nor its inverse is beyond all numbers.
    if (isInvertible && std::isnormal(matrix.determinant()))
        view.setTransform(matrix, false);
}
} // namespace

void ViewFraming::addZoom(long long steps)
{
    constexpr long long least = std::numeric_limits<int>::min();
    constexpr long long most = std::numeric_limits<int>::max();
    m_zoom = int(qBound(least, m_zoom + steps, most));
}

void ViewFraming::stepZoom(long long steps)
{
    addZoom(steps);
    Q_EMIT zoomChanged(m_zoom);
}

void ViewFraming::zoomTo(int value, bool tells)
{
    const bool isTold = tells && value != m_zoom;
    setZoom(value);
    apply();
    if (isTold)
        Q_EMIT zoomChanged(value);
}

void ViewFraming::rotateTo(int degrees, bool tells)
{
    const bool isTold = tells && degrees != m_rotation;
    setRotation(degrees);
    apply();
    if (isTold)
        Q_EMIT rotationChanged(degrees);
}

void ViewFraming::showUnscaled()
{
    const QPointer<ViewFraming> alive(this);
    setZoom(unscaled);
    Q_EMIT zoomChanged(unscaled);
    if (!alive)
        return;
    apply();
    m_view.ensureVisible(QRectF(0, 0, 0, 0), margin, margin);
}

void ViewFraming::fit(const QRectF &rect)
{
    const double scale = scaleFor(rect);
    if (scale <= 0)
        return;
    const QPointer<ViewFraming> alive(this);
    setZoom(zoomFor(scale));
    Q_EMIT zoomChanged(m_zoom);
    if (!alive)
        return;
    setRotation(0);
    Q_EMIT rotationChanged(0);
    if (alive)
        show(rect, scale);
}

void ViewFraming::apply() const
{
    const double scale = std::pow(2.0, (double(m_zoom) - unscaled) / doublingSteps);
    QTransform matrix;
    matrix.scale(scale, scale);
    matrix.rotate(m_rotation);
    give(m_view, matrix);
}

double ViewFraming::scaleFor(const QRectF &rect) const
{
    const QSize available = m_view.viewport()->size() - QSize(2 * margin, 2 * margin);
    if (rect.isEmpty() || available.isEmpty())
        return 0;
    const double scale = qMin(available.width() / rect.width(), available.height() / rect.height());
    // A rectangle without bounds, or one too small to be divided by, has none.
    return std::isnormal(scale) ? scale : 0;
}

int ViewFraming::zoomFor(double scale)
{
    return int(doublingSteps * std::log2(scale) + unscaled);
}

void ViewFraming::show(const QRectF &rect, double scale) const
{
    give(m_view, QTransform::fromScale(scale, scale));
    m_view.ensureVisible(rect, margin, margin);
}
