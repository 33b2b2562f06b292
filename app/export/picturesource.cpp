// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturesource.h>

#include <app/export/leveldrawing.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <utility>
#include <vector>

namespace {

/** A copy of @p top with all that is below it. */
std::unique_ptr<TreeItem> copyOf(const TreeItem &top)
{
    const auto copied = [](const TreeItem &item) {
        return std::make_unique<TreeItem>(EditAttributes::stateOf(item));
    };
    auto copy = copied(top);
    std::vector<std::pair<const TreeItem *, TreeItem *>> waiting{{&top, copy.get()}};
    while (!waiting.empty()) {
        const auto [original, parent] = waiting.back();
        waiting.pop_back();
        for (const TreeItem *child : original->childItems()) {
            TreeItem *const item = copied(*child).release();
            parent->appendChild(item); // which takes it over
            waiting.emplace_back(child, item);
        }
    }
    return copy;
}

} // namespace

PictureSource::PictureSource(FishEditor *editor)
    : m_editor(editor)
{
}

PictureSource::~PictureSource() = default;

const TreeItem &PictureSource::root() const
{
    const auto *const model = qobject_cast<FishModel *>(m_editor->model());
    return *model->getTreeItem(m_editor->rootIndex());
}

QString PictureSource::title() const
{
    return root().title();
}

int PictureSource::depth() const
{
    int levels = -1; // the head and the main bones count for none
    QList<TreeItem *> level = root().childItems();
    for (; !level.isEmpty(); ++levels) {
        QList<TreeItem *> next;
        for (const TreeItem *item : qAsConst(level))
            next += item->childItems();
        level = next;
    }
    return qMax(levels, 0);
}

void PictureSource::setLevels(std::optional<int> levels)
{
    if (levels == m_levels)
        return;
    m_levels = levels;
    if (!levels)
        return;
    if (!m_drawing)
        makeCopy();
    m_drawing->expand(*levels);
}

void PictureSource::makeCopy()
{
    const auto *const shown = qobject_cast<FishModel *>(m_editor->model());
    m_copy = std::make_unique<FishModel>();
    m_copy->insertExistItemRows(QModelIndex(), {copyOf(root()).release()}); // which takes it over
    if (root().isTopVaildItem()) { // whose title may be shown with these numbers
        m_copy->setModelType(shown->modelType());
        FishInfo *const document = m_copy->fishList().constFirst();
        document->setNodeCount(m_editor->currentFishInfo()->nodeCount());
        document->setNoParentNodeCount(m_editor->currentFishInfo()->noParentNodeCount());
    } else {
        m_copy->setModelType(FISH_MODEL_DIAGRAM);
    }
    m_drawing = std::make_unique<LevelDrawing>(*m_copy, m_copy->index(0, 0));
}

void PictureSource::update()
{
    if (m_levels)
        m_drawing->update();
}

FishScene *PictureSource::scene() const
{
    return m_levels ? m_drawing->scene() : m_editor->scene();
}
