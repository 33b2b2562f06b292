// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturesource.h>

#include <app/export/leveldrawing.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <QPainter>

#include <vector>

namespace {

std::unique_ptr<TreeItem> copyOf(const TreeItem &item)
{
    auto copy = std::make_unique<TreeItem>(EditAttributes::stateOf(item));
    copy->setUuid(item.uuid()); // which names it in a file
    return copy;
}

/** The subjects that are selected in @p editor; none when its head is one of them. */
QSet<const TreeItem *> selectedIn(const FishEditor &editor)
{
    QSet<const TreeItem *> selected;
    const QList<QGraphicsItem *> items = editor.selectedItems();
    for (const QGraphicsItem *item : items) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear && spear->isHeader())
            return {};
        if (spear && spear->treeItem())
            selected.insert(spear->treeItem());
    }
    return selected;
}

/** The subjects above @p selected. */
QSet<const TreeItem *> above(const QSet<const TreeItem *> &selected)
{
    QSet<const TreeItem *> found;
    for (const TreeItem *item : selected) {
        for (const TreeItem *next = item->parent(); next && !found.contains(next);
             next = next->parent())
            found.insert(next);
    }
    return found;
}

} // namespace

PictureSource::PictureSource(const FishEditor *editor, Part part)
    : m_copy(std::make_unique<FishModel>())
{
    const auto *const shown = qobject_cast<const FishModel *>(editor->model());
    const TreeItem &shownRoot = *shown->getTreeItem(editor->rootIndex());
    take(shownRoot, *editor,
         part == Part::Selection ? selectedIn(*editor) : QSet<const TreeItem *>());
    if (!shownRoot.isTopVaildItem()) {
        m_copy->setModelType(FISH_MODEL_DIAGRAM);
        return;
    }
    m_copy->setModelType(shown->modelType()); // whose title may be shown with these numbers
    FishInfo *const document = m_copy->fishList().constFirst();
    document->setNodeCount(editor->currentFishInfo()->nodeCount());
    document->setNoParentNodeCount(editor->currentFishInfo()->noParentNodeCount());
}

PictureSource::~PictureSource() = default;

/** Copies what is below @p shownRoot: all, or of the branches that lead to what is @p selected
 * those alone. */
void PictureSource::take(const TreeItem &shownRoot, const FishEditor &editor,
                         const QSet<const TreeItem *> &selected)
{
    struct Step
    {
        const TreeItem *original;
        TreeItem *copy;
        bool isWhole;
    };
    const QSet<const TreeItem *> leading = above(selected);
    auto head = copyOf(shownRoot);
    std::vector<Step> waiting{{&shownRoot, head.get(), selected.isEmpty()}};
    while (!waiting.empty()) {
        const Step step = waiting.back();
        waiting.pop_back();
        const SpearItem *const spear = step.original->spear();
        if (spear && spear->scene() == editor.scene() && spear->isExpand())
            m_expanded.insert(step.copy);
        for (const TreeItem *child : step.original->childItems()) {
            const bool isWhole = step.isWhole || selected.contains(child);
            if (!isWhole && !leading.contains(child))
                continue;
            TreeItem *const copy = copyOf(*child).release();
            step.copy->appendChild(copy); // which takes it over
            waiting.push_back({child, copy, isWhole});
        }
    }
    m_copy->insertExistItemRows(QModelIndex(), {head.release()}); // which takes it over
}

const TreeItem &PictureSource::root() const
{
    return *m_copy->getTreeItem(m_copy->index(0, 0));
}

QString PictureSource::title() const
{
    return root().title();
}

int PictureSource::depth() const
{
    constexpr int uncounted = 2; // the head and the main bones
    return qMax(OutlineWalk::levelsOf(root()) - uncounted, 0);
}

void PictureSource::setWish(const PictureWish &wish)
{
    if (wish == m_wish)
        return;
    m_wish = wish;
    m_picture.reset();
    m_isDrawn = false;
}

QRectF PictureSource::extent()
{
    return isClear() ? QRectF(QPointF(), picture().size()) : PictureExport::visibleRect(*scene());
}

void PictureSource::paint(QPainter &painter, const QRectF &target)
{
    if (isClear()) {
        picture().paint(painter, target);
        return;
    }
    FishScene *const drawn = scene();
    drawn->render(&painter, target, PictureExport::visibleRect(*drawn));
}

const DiagramPicture &PictureSource::picture()
{
    if (m_picture)
        return *m_picture;
    const DiagramLook::Options &options = m_wish.view.options;
    if (m_wish.levels)
        m_picture = std::make_unique<DiagramPicture>(&root(), options, *m_wish.levels);
    else
        m_picture = std::make_unique<DiagramPicture>(
            &root(), options, [this](const TreeItem &item) { return m_expanded.contains(&item); });
    if (const auto page = PageSize::of(m_wish.view.page))
        m_picture->arrangeFor(page->drawable());
    return *m_picture;
}

FishScene *PictureSource::scene()
{
    if (!m_drawing)
        m_drawing = std::make_unique<LevelDrawing>(*m_copy, m_copy->index(0, 0));
    if (!m_isDrawn) {
        m_drawing->setLook(m_wish.view.look, isClear() ? picture().options() : m_wish.view.options);
        if (m_wish.levels)
            m_drawing->expand(*m_wish.levels);
        else
            m_drawing->expand(m_expanded);
    }
    m_isDrawn = true;
    m_drawing->update();
    return m_drawing->scene();
}
