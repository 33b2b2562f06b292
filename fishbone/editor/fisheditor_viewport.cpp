// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that frames the drawing in its view.

#include <fishbone/editor/fisheditor.h>

#include <cmath>
#include <limits>

#include <QMouseEvent>
#include <QTransform>

#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>

namespace {
constexpr int unscaledZoom = 250;    ///< the zoom value of scale 1
constexpr double doublingSteps = 50; ///< zoom steps that double the scale
constexpr int viewMargin = 50;       ///< pixels kept free on every side when fitting

bool isUsable(const QTransform &matrix)
{
    // Inverted rather than asked: isInvertible() gives up on scales that a view still copes with.
    bool isInvertible = false;
    static_cast<void>(matrix.inverted(&isInvertible));
    // The square of the scale, so that neither the matrix nor its inverse is beyond all numbers.
    return isInvertible && std::isnormal(matrix.determinant());
}

int saturated(qint64 value)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound(qint64(Limits::min()), value, qint64(Limits::max())));
}
} // namespace

void FishEditor::setupMatrix()
{
    const double scale = std::pow(2.0, (double(m_zoomValue) - unscaledZoom) / doublingSteps);
    QTransform matrix;
    matrix.scale(scale, scale);
    matrix.rotate(m_rotateValue);
    if (isUsable(matrix))
        m_view->setTransform(matrix, false);
}

void FishEditor::zoomIn(int level)
{
    m_zoomValue = saturated(qint64(m_zoomValue) + level);
    Q_EMIT zoomValueChanged(m_zoomValue);
}

void FishEditor::zoomOut(int level)
{
    m_zoomValue = saturated(qint64(m_zoomValue) - level);
    Q_EMIT zoomValueChanged(m_zoomValue);
}

void FishEditor::setZoomValue(int value)
{
    m_zoomValue = value;
}

void FishEditor::setRotateValue(int value)
{
    m_rotateValue = value;
}

void FishEditor::zoomFish(int value)
{
    m_zoomValue = value;
    setupMatrix();
}

void FishEditor::rotateFish(int value)
{
    m_rotateValue = value;
    setupMatrix();
}

/** The zoom as a property. Who hears of it may end the editor. */
void FishEditor::writeZoom(int value)
{
    const bool changes = value != m_zoomValue;
    zoomFish(value);
    if (changes)
        Q_EMIT zoomValueChanged(value);
}

/** The rotation as a property. */
void FishEditor::writeRotation(int value)
{
    const bool changes = value != m_rotateValue;
    rotateFish(value);
    if (changes)
        Q_EMIT rotateValueChanged(value);
}

void FishEditor::rotateReset()
{
    rotateFish(0);
}

void FishEditor::fullSize()
{
    m_zoomValue = unscaledZoom;
    const QPointer<FishEditor> alive(this);
    Q_EMIT zoomValueChanged(m_zoomValue);
    if (!alive)
        return;
    setupMatrix();
    m_view->ensureVisible(QRectF(0, 0, 0, 0), viewMargin, viewMargin);
}

void FishEditor::equalRatio(const QRectF &rect)
{
    const QSize available = m_view->viewport()->size() - QSize(2 * viewMargin, 2 * viewMargin);
    if (rect.isEmpty() || available.isEmpty())
        return;
    const double scale = qMin(available.width() / rect.width(), available.height() / rect.height());
    if (!std::isnormal(scale))
        return; // a rectangle without bounds, or one too small to be divided by
    const QPointer<FishEditor> alive(this);
    m_zoomValue = int(doublingSteps * std::log2(scale) + unscaledZoom);
    Q_EMIT zoomValueChanged(m_zoomValue);
    if (!alive)
        return;
    m_rotateValue = 0;
    Q_EMIT rotateValueChanged(m_rotateValue);
    if (!alive)
        return;
    const QTransform matrix = QTransform::fromScale(scale, scale);
    if (isUsable(matrix))
        m_view->setTransform(matrix, false);
    m_view->ensureVisible(rect, viewMargin, viewMargin);
}

void FishEditor::showEntire()
{
    if (headSpear())
        equalRatio(headSpear()->childrenBoundingRect());
}

void FishEditor::showSelected()
{
    QRectF united;
    const QList<QGraphicsItem *> items = selectedItems();
    for (const QGraphicsItem *item : items)
        united = united.isEmpty() ? item->boundingRect() : united | item->boundingRect();
    equalRatio(united);
}

void FishEditor::centerView(const QModelIndex &index)
{
    if (const SpearItem *const spear = spearOf(index))
        m_view->centerOn(spear);
}

void FishEditor::ensureVisible(const QModelIndex &index)
{
    if (const SpearItem *const spear = spearOf(index))
        m_view->ensureVisible(spear, viewMargin, viewMargin);
}

void FishEditor::doubleClicked(QMouseEvent *event)
{
    if (event->buttons() != Qt::LeftButton)
        return;
    if (SpearItem *const spear = firstSelectedSpear())
        Q_EMIT editTaskDetail(spear->modelIndex());
}
