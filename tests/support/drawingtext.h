// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <vector>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/svgitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>

namespace TestSupport {

/**
 * All spears below and at @p head, parents before children and siblings in their stacking order.
 */
inline std::vector<SpearItem *> spearsInOrder(SpearItem *head)
{
    std::vector<SpearItem *> spears;
    std::vector<SpearItem *> waiting;
    if (head)
        waiting.push_back(head);
    while (!waiting.empty()) {
        SpearItem *const spear = waiting.back();
        waiting.pop_back();
        spears.push_back(spear);
        const QList<SpearItem *> children = spear->childSpears();
        waiting.insert(waiting.end(), children.crbegin(), children.crend());
    }
    return spears;
}

/** The tree of spears by the titles of their subjects, "Effect[Man[Training],Machine]". */
inline QString spearTreeText(SpearItem *head)
{
    const std::vector<SpearItem *> spears = spearsInOrder(head);
    QString text;
    int depth = head ? head->depth() : 0;
    for (const SpearItem *spear : spears) {
        const int spearDepth = spear->depth();
        if (spearDepth > depth)
            text.append(QLatin1Char('['));
        else if (spear != head)
            text.append(QString(depth - spearDepth, QLatin1Char(']')) + QLatin1Char(','));
        depth = spearDepth;
        text.append(spear->treeItem() ? spear->treeItem()->title() : spear->text());
    }
    return head ? text + QString(depth - head->depth(), QLatin1Char(']')) : text;
}

/** "Effect+ Man- Machine-": all spears with their expand flags. */
inline QString expansionText(SpearItem *head)
{
    QStringList texts;
    const std::vector<SpearItem *> spears = spearsInOrder(head);
    for (const SpearItem *spear : spears)
        texts.append(spear->text() + QLatin1Char(spear->isExpand() ? '+' : '-'));
    return texts.join(QLatin1Char(' '));
}

inline QString numberText(double value)
{
    // Rounded so that sums in another order still agree.
    const double rounded = qRound64(value * 1e6) / 1e6;
    return QString::number(rounded + 0.0, 'g', 15); // no negative zero
}

inline QString pointText(const QPointF &point)
{
    return numberText(point.x()) + QLatin1Char(' ') + numberText(point.y());
}

inline QString companionText(const QGraphicsItem *item)
{
    if (!item)
        return QStringLiteral("none");
    const auto *const svg = dynamic_cast<const SvgItem *>(item);
    return (svg ? svg->svgFile() : QStringLiteral("item")) + QLatin1Char('@') +
           pointText(item->pos());
}

/** Everything that a spear shows and where, in one line. */
inline QString spearText(SpearItem *spear)
{
    const auto *const link = dynamic_cast<const LinkItem *>(spear->linkItem());
    return QStringList{
        spear->text(),
        spear->textDisplay(),
        QStringLiteral("line ") + pointText(spear->line().p1()) + QLatin1Char(' ') +
            pointText(spear->line().p2()),
        QStringLiteral("pos ") + pointText(spear->pos()),
        QStringLiteral("direction %1").arg(spear->direction()),
        QStringLiteral("offset ") + numberText(spear->offset()),
        QStringLiteral("z ") + numberText(spear->zValue()),
        QLatin1String(spear->isExpand() ? "expanded" : "contracted"),
        QStringLiteral("opacity ") + numberText(spear->opacity()),
        QStringLiteral("text ") + spear->textItem()->toPlainText() + QLatin1Char('@') +
            pointText(spear->textItem()->pos()) + QLatin1Char('/') +
            numberText(spear->textItem()->rotation()),
        QStringLiteral("status ") + companionText(spear->statusItem()) +
            QLatin1String(spear->statusItem()->isVisible() ? "" : " hidden"),
        QStringLiteral("expand ") + companionText(spear->expandBuddy()),
        QStringLiteral("link ") + companionText(spear->linkItem()) +
            (link ? QLatin1Char(' ') + link->url() : QString()),
    }
        .join(QLatin1String(" | "));
}

/** The drawing, a line for each visible spear. */
inline QStringList drawingText(SpearItem *head)
{
    QStringList lines;
    const std::vector<SpearItem *> spears = spearsInOrder(head);
    for (SpearItem *spear : spears) {
        if (spear->isVisible())
            lines.append(spearText(spear));
    }
    return lines;
}

/** The rectangle of everything that a scene shows. */
inline QRectF visibleRect(const QGraphicsScene &scene)
{
    QRectF rect;
    const QList<QGraphicsItem *> items = scene.items();
    for (const QGraphicsItem *item : items) {
        if (item->isVisible())
            rect |= item->sceneBoundingRect();
    }
    return rect;
}

/** The pixels of what a scene shows, on white, one per unit. */
inline QImage rendered(QGraphicsScene &scene)
{
    const QRectF rect = visibleRect(scene);
    QImage image(rect.size().toSize() + QSize(1, 1), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.render(&painter, QRectF(image.rect()), rect);
    return image;
}

} // namespace TestSupport
