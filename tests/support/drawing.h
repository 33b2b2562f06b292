// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QMouseEvent>

#include <fishbone/drawing/fishlayout.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <tests/support/documents.h>

namespace TestSupport {

/**
 * A model with one document and a scene with all its spears, expanded and laid out; no editor and
 * no view. Heads show their plain title.
 */
class Drawing
{
    Q_DISABLE_COPY(Drawing)

public:
    /**
     * The document is written as documentFromText() reads it. A @p style becomes every node's own.
     */
    explicit Drawing(const QString &document, const QJsonObject &style = {})
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        loadDocument(model, document);
        const QModelIndex top = model.index(0, 0);
        std::vector<TreeItem *> nodes{model.getTreeItem(top)};
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            nodes[i]->setSpearStyle(style);
            const QList<TreeItem *> children = nodes[i]->children();
            nodes.insert(nodes.end(), children.cbegin(), children.cend());
        }
        const SpearBuilder builder(model);
        head = builder.buildHead(top);
        builder.buildDescendants(top);
        scene.addItem(head);
        FishLayout(head).expandBones(true);
        layOut();
    }

    void layOut() const
    {
        SettledDrawing unknown;
        FishLayout(head).update(unknown);
    }

    QModelIndex index(const QString &title) const { return indexTitled(model, title); }
    TreeItem *node(const QString &title) const { return nodeTitled(model, title); }
    SpearItem *spear(const QString &title) const { return node(title)->spear(); }

    FishModel model;
    FishScene scene;
    SpearItem *head = nullptr;

private:
    QAbstractItemModelTester m_tester{&model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

/** Lets an item have a hover event at a point of its own, without a mouse. */
inline void sendHover(QGraphicsItem &item, QEvent::Type type, const QPointF &pos = {})
{
    QGraphicsSceneHoverEvent event(type);
    event.setPos(pos);
    event.setScenePos(item.mapToScene(pos));
    item.scene()->sendEvent(&item, &event);
}

/** Lets an item have a press; true when the item kept it. */
inline bool sendPress(QGraphicsItem &item, Qt::MouseButton button)
{
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setButton(button);
    event.setButtons(button);
    event.accept();
    item.scene()->sendEvent(&item, &event);
    return event.isAccepted();
}

/** Moves the mouse over a view without a button. */
inline void moveMouse(QGraphicsView &view, const QPointF &scenePos)
{
    const QPoint pos = view.mapFromScene(scenePos);
    QMouseEvent event(QEvent::MouseMove, pos, view.viewport()->mapToGlobal(pos), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &event);
}

/** Takes the mouse off a view. */
inline void leaveView(QGraphicsView &view)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(view.viewport(), &event);
}

} // namespace TestSupport
