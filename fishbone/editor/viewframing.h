// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QGraphicsView;
class QRectF;

/**
 * How a view frames its scene: zoom value and rotation, and the matrix that they make. Who hears
 * of them may end the view.
 */
class ViewFraming : public QObject
{
    Q_OBJECT

public:
    static constexpr int unscaled = 250;        ///< the zoom value of scale 1
    static constexpr double doublingSteps = 50; ///< zoom steps that double the scale
    static constexpr int margin = 50;           ///< pixels kept free on every side when fitting

    explicit ViewFraming(QGraphicsView &view)
        : m_view(view)
    {
    }

    int zoom() const { return m_zoom; }         ///< 250 is 1:1, 50 more doubles the scale
    int rotation() const { return m_rotation; } ///< degrees
    void setZoom(int value) { m_zoom = value; }
    void setRotation(int degrees) { m_rotation = degrees; }
    /** Adds to the zoom value, up to what an int can hold. */
    void addZoom(long long steps);

    /** Adds to the zoom value and tells; the view stays as it is. */
    void stepZoom(long long steps);
    /** Sets the zoom value and applies it; told when @p tells says so and the value is another. */
    void zoomTo(int value, bool tells);
    /** Likewise the rotation. */
    void rotateTo(int degrees, bool tells);
    /** 1:1, with the scene's origin in view; told before it is applied. */
    void showUnscaled();
    /**
     * Fits @p rect (scene units) and the margins into the view, without rotation; both are told
     * before they are applied. Nothing when there is no scale for it.
     */
    void fit(const QRectF &rect);

    /** Gives the view the matrix of both; one that no inverse can be had of leaves it as it was. */
    void apply() const;
    /**
     * The scale at which @p rect (scene units) and the margins fill the view; 0 when there is
     * none, for an empty rectangle or in a small viewport.
     */
    double scaleFor(const QRectF &rect) const;
    /** The zoom value of @p scale, rounded towards 0. */
    static int zoomFor(double scale);
    /** Shows @p rect at exactly @p scale, without rotation. */
    void show(const QRectF &rect, double scale) const;

Q_SIGNALS:
    /** The zoom value is @p value. */
    void zoomChanged(int value);
    /** The rotation is @p degrees. */
    void rotationChanged(int degrees);

private:
    QGraphicsView &m_view;
    int m_zoom = unscaled;
    int m_rotation = 0;
};
