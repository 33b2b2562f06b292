// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that frames the drawing in its view, and prints it.

#include <fishbone/editor/fisheditor.h>

#include <QMouseEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <fishbone/base/modalanswer.h>
#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>

int FishEditor::zoomValue() const
{
    return m_d->framing.zoom();
}

int FishEditor::rotateValue() const
{
    return m_d->framing.rotation();
}

void FishEditor::setupMatrix()
{
    m_d->framing.apply();
}

void FishEditor::zoomIn(int level)
{
    m_d->framing.addZoom(level);
    Q_EMIT zoomValueChanged(zoomValue());
}

void FishEditor::zoomOut(int level)
{
    m_d->framing.addZoom(-qint64(level));
    Q_EMIT zoomValueChanged(zoomValue());
}

void FishEditor::setZoomValue(int value)
{
    m_d->framing.setZoom(value);
}

void FishEditor::setRotateValue(int value)
{
    m_d->framing.setRotation(value);
}

void FishEditor::zoomFish(int value)
{
    setZoomValue(value);
    setupMatrix();
}

void FishEditor::rotateFish(int value)
{
    setRotateValue(value);
    setupMatrix();
}

/** The zoom as a property. Who hears of it may end the editor. */
void FishEditor::writeZoom(int value)
{
    const bool changes = value != zoomValue();
    zoomFish(value);
    if (changes)
        Q_EMIT zoomValueChanged(value);
}

/** The rotation as a property. */
void FishEditor::writeRotation(int value)
{
    const bool changes = value != rotateValue();
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
    const QPointer<FishEditor> alive(this);
    setZoomValue(ViewFraming::unscaled);
    Q_EMIT zoomValueChanged(ViewFraming::unscaled);
    if (!alive)
        return;
    setupMatrix();
    view()->ensureVisible(QRectF(0, 0, 0, 0), ViewFraming::margin, ViewFraming::margin);
}

void FishEditor::equalRatio(const QRectF &rect)
{
    const double scale = m_d->framing.scaleFor(rect);
    if (scale <= 0)
        return;
    const QPointer<FishEditor> alive(this);
    setZoomValue(ViewFraming::zoomFor(scale));
    Q_EMIT zoomValueChanged(zoomValue());
    if (!alive)
        return;
    setRotateValue(0);
    Q_EMIT rotateValueChanged(0);
    if (alive)
        m_d->framing.show(rect, scale);
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
        view()->centerOn(spear);
}

void FishEditor::ensureVisible(const QModelIndex &index)
{
    const SpearItem *const spear = spearOf(index);
    if (!spear)
        return;
    view()->ensureVisible(spear, ViewFraming::margin, ViewFraming::margin);
    if (look() != DiagramLook::Classic) // where texts stand along their bones
        view()->ensureVisible(spear->textItem(), ViewFraming::margin, ViewFraming::margin);
}

SpearItem *FishEditor::boneAt(const QPoint &pos) const
{
    return BoneSelection::spearOf(view()->itemAt(pos));
}

void FishEditor::doubleClicked(QMouseEvent *event)
{
    if (event->buttons() != Qt::LeftButton)
        return;
    if (SpearItem *const spear = firstSelectedSpear())
        Q_EMIT editTaskDetail(spear->modelIndex());
}

void FishEditor::createPopMenu(QMenu &menu, SpearItem *spear)
{
    m_d->menu.fill(menu, spear);
}

void FishEditor::onRightClicked(void *payload)
{
    m_d->menu.show(static_cast<SpearItem *>(payload));
}

void FishEditor::setBoneMenuFiller(const std::function<void(QMenu &, SpearItem *)> &filler)
{
    m_d->menu.setFiller(filler);
}

void FishEditor::print()
{
    QPrinter printer(QPrinter::ScreenResolution);
    const auto isAccepted = [](const QPrintDialog &) { return true; };
    if (!modalAnswer(new QPrintDialog(&printer, this), isAccepted))
        return; // also when the editor has died with the dialog open
    QPainter painter(&printer);
    m_d->view->render(&painter, QRectF(), QRect(), Qt::KeepAspectRatio);
}
