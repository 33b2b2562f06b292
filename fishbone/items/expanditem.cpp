// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/expanditem.h>

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPointer>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

namespace {
QPointer<FishEditor> &fallbackEditor()
{
    static QPointer<FishEditor> editor;
    return editor;
}

QString iconFile(bool expanded)
{
    return expanded ? QStringLiteral(":/fishboneDiagram/contract.svg")
                    : QStringLiteral(":/fishboneDiagram/expand.svg");
}
} // namespace

ExpandItem::ExpandItem(SpearItem *spear)
    : SvgItem(iconFile(spear && spear->isExpand()), nullptr)
    , m_spear(spear)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void ExpandItem::setFishEditor(FishEditor *editor)
{
    if (editor)
        fallbackEditor() = editor;
}

QRectF ExpandItem::badge() const
{
    const SpearItem *const spear = m_spear.get();
    return spear ? spear->look().badge(*spear) : QRectF();
}

QRectF ExpandItem::boundingRect() const
{
    const QRectF instead = badge();
    return instead.isNull() ? SvgItem::boundingRect() : instead;
}

void ExpandItem::boxChanges()
{
    prepareGeometryChange();
    update();
}

void ExpandItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    if (badge().isNull())
        SvgItem::paint(painter, option, widget);
    else
        m_spear.get()->look().paintBadge(*painter, *m_spear.get());
}

void ExpandItem::updateSvgIcon()
{
    if (const SpearItem *const spear = m_spear.get())
        setSvgFile(iconFile(spear->isExpand()));
}

void ExpandItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // Left unaccepted in every case, so that the press also reaches what lies beneath and the view.
    event->ignore();
    SpearItem *const spear = m_spear.get();
    if (event->button() != Qt::LeftButton || !spear)
        return;
    const SelectionHold hold(scene()); // to the end: who hears of it may end the button
    {
        const SelectionSilence silence(scene());
        if (QGraphicsScene *const shownIn = scene())
            shownIn->clearSelection();
        spear->setSelected(true);
    }
    // Children that were built just now are shown, whatever the flag said before.
    const bool generated = generateMissingChildren(spear);
    spear->setExpand(generated || !spear->isExpand());
    updateSvgIcon();
}

void ExpandItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    Q_UNUSED(event)
    setCursor(Qt::PointingHandCursor);
}

FishEditor *ExpandItem::responsibleEditor() const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    for (const QGraphicsView *view : views) {
        for (QWidget *widget = view->parentWidget(); widget; widget = widget->parentWidget()) {
            if (auto *const editor = qobject_cast<FishEditor *>(widget))
                return editor;
        }
    }
    return fallbackEditor();
}

bool ExpandItem::generateMissingChildren(SpearItem *spear) const
{
    const TreeItem *const subject = spear->treeItem();
    if (!subject || subject->childCount() == 0 || !spear->childSpears().isEmpty())
        return false;
    FishEditor *const editor = responsibleEditor();
    if (!editor || !qobject_cast<FishModel *>(editor->model()))
        return false;
    // Builds nothing when the editor shows another model.
    editor->generateSpear(editor->model(), spear->modelIndex());
    return !spear->childSpears().isEmpty();
}
