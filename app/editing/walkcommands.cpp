// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/walkcommands.h>

#include <app/common/actionset.h>
#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/fishmodel.h>

#include <QAction>

#include <cmath>
#include <limits>

WalkCommands::WalkCommands(DiagramSession *session, ActionSet *actions, QObject *parent)
    : DiagramCommands(session, actions, parent)
{
    addDirections();
    addLevels();
}

void WalkCommands::add(const char *name, const char *text, int key, const Step &step)
{
    m_actions->add(
        QLatin1String(name), [text] { return tr(text); }, {QKeySequence(key)},
        ActionSet::Scope::Drawing, [this, step] { go(step); });
}

void WalkCommands::addDirections()
{
    const auto addDirection = [this](const char *name, const char *text, int key,
                                     const QPointF &direction) {
        add(name, text, key,
            [this, direction](const SpearItem &from) { return nearest(from, direction); });
    };
    addDirection("goLeft", QT_TR_NOOP("To the &left"), Qt::Key_Left, QPointF(-1, 0));
    addDirection("goRight", QT_TR_NOOP("To the &right"), Qt::Key_Right, QPointF(1, 0));
    addDirection("goUp", QT_TR_NOOP("&Up"), Qt::Key_Up, QPointF(0, -1));
    addDirection("goDown", QT_TR_NOOP("&Down"), Qt::Key_Down, QPointF(0, 1));
}

void WalkCommands::addLevels()
{
    add("goParent", QT_TR_NOOP("To the &parent"), Qt::CTRL | Qt::Key_Up, [](const SpearItem &from) {
        return from.isHeader() ? QModelIndex() : from.modelIndex().parent();
    });
    add("goChild", QT_TR_NOOP("To the &first child"), Qt::CTRL | Qt::Key_Down,
        [this](const SpearItem &from) {
            return m_session->model()->index(0, 0, from.modelIndex());
        });
    const auto sibling = [](const SpearItem &from, int distance) {
        const QModelIndex index = from.modelIndex();
        return from.isHeader() ? QModelIndex() : index.siblingAtRow(index.row() + distance);
    };
    add("goPrevious", QT_TR_NOOP("To the one &before"), Qt::CTRL | Qt::Key_Left,
        [sibling](const SpearItem &from) { return sibling(from, -1); });
    add("goNext", QT_TR_NOOP("To the &next one"), Qt::CTRL | Qt::Key_Right,
        [sibling](const SpearItem &from) { return sibling(from, 1); });
}

void WalkCommands::go(const Step &step)
{
    const SpearItem *const from = m_editor->firstSelectedSpear();
    const QModelIndex target = from ? step(*from) : m_editor->rootIndex();
    if (target.isValid())
        m_session->select(target);
}

/** Where the title of @p spear is seen, in the view's coordinates. */
QPointF WalkCommands::seenPosition(const SpearItem &spear) const
{
    const TextItem *const text = spear.textItem();
    return m_editor->view()->viewportTransform().map(
        text->mapToScene(text->boundingRect().center()));
}

/** The visible bone that is next in @p direction, which has the length 1. What lies aside counts as
 * twice as far away. */
QModelIndex WalkCommands::nearest(const SpearItem &from, const QPointF &direction) const
{
    const QPointF start = seenPosition(from);
    double leastDistance = std::numeric_limits<double>::max();
    QModelIndex found;
    const QList<QGraphicsItem *> items = m_editor->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *const spear = qgraphicsitem_cast<SpearItem *>(item);
        if (!spear || spear == &from || !spear->isVisible())
            continue;
        const QPointF way = seenPosition(*spear) - start;
        const double ahead = QPointF::dotProduct(way, direction);
        const double aside = std::abs(way.x() * direction.y() - way.y() * direction.x());
        const double distance = ahead + 2 * aside;
        if (ahead < 1 || distance >= leastDistance)
            continue;
        leastDistance = distance;
        found = m_editor->spearIndex(spear);
    }
    return found;
}

void WalkCommands::updateActions()
{
    for (const char *name :
         {"goLeft", "goRight", "goUp", "goDown", "goParent", "goChild", "goPrevious", "goNext"})
        m_actions->action(QLatin1String(name))->setEnabled(m_editor->headSpear());
}
