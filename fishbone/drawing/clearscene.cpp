// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearscene.h>

#include <fishbone/drawing/clearcontent.h>
#include <fishbone/drawing/clearlook.h>
#include <fishbone/drawing/clearspear.h>
#include <fishbone/drawing/screenonly.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearpasses.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>

#include <QGraphicsScene>

namespace {

/** The one item that all others of @p scene belong to, when that is a header that stands where its
 * look has it. */
const SpearItem *onlyHeader(const QGraphicsScene &scene)
{
    const SpearItem *header = nullptr;
    const QList<QGraphicsItem *> items = scene.items();
    for (const QGraphicsItem *item : items) {
        if (item->parentItem() || !item->isVisible())
            continue;
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (header || !spear || !spear->isHeader() || !spear->sceneTransform().isIdentity())
            return nullptr;
        header = spear;
    }
    return header;
}

/** Whether what @p child shows of @p spear is told by the place that its look gave it. */
bool isKnown(const QGraphicsItem *child, const SpearItem &spear)
{
    if (child == spear.textItem() || child == SpearPasses::madeStatus(spear) ||
        isForTheScreenOnly(*child))
        return true;
    if (child == spear.expandBuddy())
        return !spear.look().badge(spear).isNull();
    const auto *const icon = dynamic_cast<const SvgItem *>(child);
    return child == spear.linkItem() && icon;
}

QString fileOf(const QGraphicsItem *item)
{
    const auto *const icon = dynamic_cast<const SvgItem *>(item);
    return icon && icon->isVisible() ? icon->svgFile() : QString();
}

bool isOpaque(const QGraphicsItem &item)
{
    return item.opacity() >= 1;
}

} // namespace

std::unique_ptr<ClearScene> ClearScene::of(const QGraphicsScene &scene, const QRectF &bounds)
{
    const SpearItem *const head = onlyHeader(scene);
    if (!head || !ClearSpear::of(*head) || !dynamic_cast<const ClearLook *>(&head->look()))
        return nullptr;
    std::unique_ptr<ClearScene> made(new ClearScene(head, bounds)); // whose constructor is private
    return made->collect(head) ? std::move(made) : nullptr;
}

ClearScene::ClearScene(const SpearItem *head, const QRectF &bounds)
    : m_look(dynamic_cast<const ClearLook *>(&head->look()))
    , m_bounds(bounds)
{
}

/** Takes the bones that are shown, in document order; false when there is something else. */
bool ClearScene::collect(const SpearItem *head)
{
    std::vector<Part> waiting{{head, -1, 0}};
    while (!waiting.empty()) {
        const Part part = waiting.back();
        waiting.pop_back();
        const int index = int(m_spears.size());
        m_spears.push_back(part);
        if (!ClearSpear::of(*part.spear) || !isOpaque(*part.spear))
            return false;
        const QList<QGraphicsItem *> children = part.spear->childItems();
        for (auto child = children.crbegin(); child != children.crend(); ++child) {
            if (!(*child)->isVisible())
                continue;
            if (const auto *const spear = qgraphicsitem_cast<const SpearItem *>(*child))
                waiting.push_back({spear, index, part.level + 1});
            else if (!isKnown(*child, *part.spear) || !isOpaque(**child))
                return false;
        }
    }
    return true;
}

QString ClearScene::family() const
{
    return ClearFonts::ofTheUser().ofLevel(2).font().family();
}

QStringList ClearScene::categories() const
{
    QStringList titles;
    for (const Part &part : m_spears) {
        if (part.level == 1)
            titles << part.spear->text();
    }
    return titles;
}

QStringList ClearScene::icons() const
{
    QStringList files;
    for (const Part &part : m_spears)
        files << fileOf(SpearPasses::madeStatus(*part.spear)) << fileOf(part.spear->linkItem());
    for (const ClearMeaning &symbol : ClearSpear::of(*m_spears.front().spear)->frame->symbols)
        files << symbol.icon;
    return files;
}

bool ClearScene::describe(PictureSink &sink) const
{
    for (int index = 0; index < count(); ++index) {
        if (!goesOn(index))
            return false;
        const auto &[spear, parent, level] = m_spears[std::size_t(index)];
        if (index == 0)
            m_look->describeFish(sink, *spear);
        sink.beginSubject(index, ClearContent::about(spear->treeItem(), parent, level));
        m_look->describe(sink, *spear);
        const ClearLayout::Bone &bone = ClearSpear::of(*spear)->bone;
        const QString status =
            bone.status.isNull() ? QString() : fileOf(SpearPasses::madeStatus(*spear));
        const QString link = bone.link.isNull() ? QString() : fileOf(spear->linkItem());
        if (!status.isEmpty())
            sink.icon(bone.status, status);
        if (!link.isEmpty())
            sink.icon(bone.link, link);
        if (spear->expandBuddy() && spear->expandBuddy()->isVisible())
            m_look->describeBadge(sink, *spear);
        sink.endSubject();
    }
    m_look->describeLegend(sink, *m_spears.front().spear);
    return true;
}
