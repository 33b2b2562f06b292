// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/scenepainter.h>

#include <fishbone/drawing/screenonly.h>

#include <QGraphicsEffect>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTransform>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

constexpr double invisible = 0.001; ///< as QGraphicsScene takes it
constexpr int itemsBetweenQuestions = 64;

/** An item that waits for its turn. */
struct Placed
{
    QGraphicsItem *item;
    QTransform toScene;
    double opacity; ///< what it inherits
    bool isAlone;   ///< its children have been seen to
};

/** Takes a scene's own background away as long as it lives. */
class BackgroundRemover
{
    Q_DISABLE_COPY(BackgroundRemover)

public:
    explicit BackgroundRemover(QGraphicsScene &scene)
        : m_scene(scene)
        , m_brush(scene.backgroundBrush())
    {
        if (m_brush.style() != Qt::NoBrush)
            m_scene.setBackgroundBrush(Qt::NoBrush);
    }
    ~BackgroundRemover()
    {
        if (m_brush.style() != Qt::NoBrush)
            m_scene.setBackgroundBrush(m_brush);
    }

private:
    QGraphicsScene &m_scene;
    QBrush m_brush;
};

bool isPlain(const QGraphicsItem &item)
{
    constexpr QGraphicsItem::GraphicsItemFlags special =
        QGraphicsItem::ItemClipsToShape | QGraphicsItem::ItemClipsChildrenToShape |
        QGraphicsItem::ItemContainsChildrenInShape | QGraphicsItem::ItemIgnoresTransformations |
        QGraphicsItem::ItemIgnoresParentOpacity |
        QGraphicsItem::ItemDoesntPropagateOpacityToChildren;
    return !(item.flags() & special) && !item.graphicsEffect();
}

std::vector<Placed> asWaiting(const QList<QGraphicsItem *> &topLevel)
{
    std::vector<Placed> all;
    for (QGraphicsItem *item : topLevel)
        all.push_back({item, item->sceneTransform(), 1, false});
    return all;
}

QStyleOptionGraphicsItem optionFor(const QGraphicsItem &item)
{
    QStyleOptionGraphicsItem option;
    const QRectF bounds = item.boundingRect();
    option.rect = bounds.toRect();
    option.exposedRect = bounds;
    option.state.setFlag(QStyle::State_Selected, item.isSelected());
    option.state.setFlag(QStyle::State_Enabled, item.isEnabled());
    option.state.setFlag(QStyle::State_HasFocus, item.hasFocus());
    return option;
}

bool isSeen(const Placed &placed)
{
    return placed.item->isVisible() && placed.opacity * placed.item->opacity() >= invisible &&
           !isForTheScreenOnly(*placed.item);
}

/** Puts @p placed and its children onto @p waiting in the order of painting. */
void unfold(Placed placed, std::vector<Placed> &waiting)
{
    const double opacity = placed.opacity * placed.item->opacity();
    placed.isAlone = true;
    const QList<QGraphicsItem *> children = placed.item->childItems(); // the undermost first
    const auto put = [&](bool behind) {
        for (auto child = children.crbegin(); child != children.crend(); ++child) {
            if ((*child)->flags().testFlag(QGraphicsItem::ItemStacksBehindParent) == behind)
                waiting.push_back({*child, (*child)->itemTransform(placed.item) * placed.toScene,
                                   opacity, false});
        }
    };
    put(false); // what is put last is taken first
    waiting.push_back(placed);
    put(true);
}

/** Whether @p placed shows anything in the part @p source. */
bool isIn(const QRectF &source, const Placed &placed)
{
    if (placed.item->flags() & QGraphicsItem::ItemHasNoContents)
        return false;
    const QRectF covered = placed.toScene.mapRect(placed.item->boundingRect());
    // A line along an axis covers nothing, and is seen all the same.
    return covered.left() <= source.right() && covered.right() >= source.left() &&
           covered.top() <= source.bottom() && covered.bottom() >= source.top();
}

void paintOne(QPainter &painter, const Placed &placed, const QTransform &view)
{
    const QStyleOptionGraphicsItem option = optionFor(*placed.item);
    painter.setWorldTransform(placed.toScene * view);
    painter.save();
    painter.setOpacity(placed.opacity * placed.item->opacity());
    placed.item->paint(&painter, &option, nullptr);
    painter.restore();
}

} // namespace

SceneExtent extentOf(const QGraphicsScene &scene)
{
    SceneExtent extent;
    extent.isPlain = scene.foregroundBrush().style() == Qt::NoBrush;
    const QList<QGraphicsItem *> items = scene.items(Qt::DescendingOrder);
    std::copy_if(items.cbegin(), items.cend(), std::back_inserter(extent.topLevel),
                 [](const QGraphicsItem *item) { return !item->parentItem(); });
    std::vector<Placed> waiting = asWaiting(extent.topLevel);
    while (!waiting.empty()) {
        const Placed placed = waiting.back();
        waiting.pop_back();
        if (!placed.item->isVisible())
            continue;
        if (!isForTheScreenOnly(*placed.item))
            ++extent.items;
        extent.isPlain = extent.isPlain && isPlain(*placed.item);
        if (!(placed.item->flags() & QGraphicsItem::ItemHasNoContents))
            extent.rect |= placed.toScene.mapRect(placed.item->boundingRect());
        const QList<QGraphicsItem *> children = placed.item->childItems();
        for (QGraphicsItem *child : children)
            waiting.push_back(
                {child, child->itemTransform(placed.item) * placed.toScene, 1, false});
    }
    return extent;
}

ScenePainter::ScenePainter(QGraphicsScene &scene, const SceneExtent &extent, const QRectF &source,
                           const QRectF &target)
    : m_scene(scene)
    , m_extent(extent)
    , m_source(source)
    , m_target(target)
{
}

bool ScenePainter::paint(QPainter &painter, const Goes &goes) const
{
    if (m_extent.isPlain) {
        painter.save();
        const bool isDone = paintItems(painter, goes);
        painter.restore();
        return isDone;
    }
    if (!goes(0))
        return false;
    const BackgroundRemover remover(m_scene);
    m_scene.render(&painter, m_target, m_source, Qt::IgnoreAspectRatio);
    return true;
}

bool ScenePainter::paintItems(QPainter &painter, const Goes &goes) const
{
    painter.setClipRect(m_target, Qt::IntersectClip);
    const QTransform view =
        QTransform()
            .translate(m_target.left(), m_target.top())
            .scale(m_target.width() / m_source.width(), m_target.height() / m_source.height())
            .translate(-m_source.left(), -m_source.top()) *
        painter.worldTransform();
    std::vector<Placed> waiting = asWaiting(m_extent.topLevel);
    int done = 0;
    while (!waiting.empty()) {
        const Placed placed = waiting.back();
        waiting.pop_back();
        if (!placed.isAlone) {
            if (isSeen(placed))
                unfold(placed, waiting);
            continue;
        }
        if (done % itemsBetweenQuestions == 0 && !goes(done))
            return false;
        const bool isSampled = done++ % m_step == 0;
        if (!isSampled || !isIn(m_source, placed))
            continue;
        if (m_begins)
            m_begins(*placed.item);
        paintOne(painter, placed, view);
    }
    return true;
}
