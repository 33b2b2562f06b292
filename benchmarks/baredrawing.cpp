// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <benchmarks/baredrawing.h>

#include <deque>

#include <QGraphicsLineItem>
#include <QGraphicsSvgItem>
#include <QGraphicsTextItem>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>

namespace {

std::vector<IconPlan> iconsOf(const SpearItem &spear)
{
    std::vector<IconPlan> icons;
    const QList<QGraphicsItem *> children = spear.childItems();
    for (QGraphicsItem *child : children) {
        const auto *const icon = dynamic_cast<const SvgItem *>(child);
        if (icon && !icon->svgFile().isEmpty())
            icons.push_back({icon->svgFile(), icon->pos(), icon->isVisible()});
    }
    return icons;
}

} // namespace

DrawingPlan planOf(SpearItem *head)
{
    DrawingPlan plan;
    std::deque<std::pair<SpearItem *, int>> pending{{head, -1}};
    while (!pending.empty()) {
        const auto [spear, parent] = pending.front();
        pending.pop_front();
        const TextItem &text = *spear->textItem();
        plan.push_back({parent, text.toPlainText(), spear->toolTip(), spear->line(), spear->pen(),
                        text.font(), text.defaultTextColor(), text.pos(), text.rotation(),
                        spear->isVisible(), iconsOf(*spear)});
        const QList<SpearItem *> children = spear->childSpears();
        for (SpearItem *child : children)
            pending.emplace_back(child, int(plan.size()) - 1);
    }
    return plan;
}

BareDrawing::BareDrawing(const DrawingPlan &plan)
    : m_plan(plan)
    , m_view(&m_scene)
{
    m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    m_view.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                          QPainter::SmoothPixmapTransform);
    m_view.setOptimizationFlag(QGraphicsView::DontSavePainterState);
    m_view.setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    for (const BonePlan &bone : plan) {
        for (const IconPlan &icon : bone.icons) {
            QSvgRenderer *&renderer = m_renderers[icon.file];
            if (!renderer)
                renderer = new QSvgRenderer(icon.file, &m_owner);
        }
    }
}

void BareDrawing::build()
{
    m_bones.reserve(m_plan.size());
    for (const BonePlan &plan : m_plan) {
        QGraphicsLineItem *const parent =
            plan.parent < 0 ? nullptr : m_bones[std::size_t(plan.parent)].line;
        auto *const line = new QGraphicsLineItem(plan.line, parent);
        line->setPen(plan.pen);
        line->setToolTip(plan.toolTip);
        line->setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable);
        line->setAcceptHoverEvents(true);
        line->setVisible(plan.isVisible);
        auto *const text = new QGraphicsTextItem(line);
        text->setFont(plan.font);
        text->setDefaultTextColor(plan.textColor);
        text->setPlainText(plan.title);
        text->setRotation(plan.textRotation);
        text->setPos(plan.textPosition);
        Bone bone{line, text, {}};
        bone.icons.reserve(plan.icons.size());
        for (const IconPlan &icon : plan.icons) {
            auto *const item = new QGraphicsSvgItem(line);
            item->setSharedRenderer(m_renderers.value(icon.file));
            item->setPos(icon.position);
            item->setVisible(icon.isVisible);
            bone.icons.push_back(item);
        }
        m_bones.push_back(std::move(bone));
    }
    m_scene.addItem(m_bones.front().line);
}

void BareDrawing::place(const DrawingPlan &plan)
{
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const Bone &bone = m_bones[i];
        bone.line->setLine(plan[i].line);
        bone.text->setPos(plan[i].textPosition);
        for (std::size_t icon = 0; icon < bone.icons.size(); ++icon)
            bone.icons[icon]->setPos(plan[i].icons[icon].position);
    }
}

void BareDrawing::clear()
{
    m_bones.clear();
    m_scene.clear();
}
