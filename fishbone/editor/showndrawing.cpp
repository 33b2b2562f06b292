// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/showndrawing.h>

#include <QGraphicsView>
#include <QModelIndex>
#include <QPointer>

#include <fishbone/drawing/drawingaudience.h>
#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/viewframing.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>

ShownDrawing::ShownDrawing(QGraphicsView &view)
    : m_view(view)
    , m_scene(std::make_unique<FishScene>())
{
}

ShownDrawing::~ShownDrawing()
{
    end();
}

void ShownDrawing::end()
{
    if (!m_scene)
        return;
    // The scene goes first and reports nothing more: neither host nor view shall hear of the
    // selection that dies with it.
    m_scene->blockSignals(true);
    m_head = SpearPointer();
    m_view.setScene(nullptr);
    m_scene.reset();
}

SpearItem *ShownDrawing::spearOf(const TreeItem *subject) const
{
    SpearItem *const spear = subject ? subject->spear() : nullptr;
    return spear && spear->scene() == m_scene.get() ? spear : nullptr;
}

QList<QGraphicsItem *> ShownDrawing::selectedItems() const
{
    return BoneSelection::items(*m_scene, head());
}

SpearItem *ShownDrawing::selectedSpear() const
{
    return BoneSelection::spearOf(selectedItems().value(0));
}

QModelIndex ShownDrawing::selectedIndex() const
{
    const SpearItem *const spear = selectedSpear();
    return spear ? spear->modelIndex() : QModelIndex();
}

void ShownDrawing::show(SpearItem *head)
{
    m_head = head;
    if (head)
        m_scene->addItem(head);
}

void ShownDrawing::clear()
{
    m_head = SpearPointer();
    {
        const SelectionSilence silence(m_scene.get());
        m_scene->clear();
    }
    DrawingAudience::drawingChanged(&m_view);
}

void ShownDrawing::updateHeadText()
{
    // Asked of its own model, which need not be the one that was set last.
    const QString title = head()->modelIndex().data(Qt::DisplayRole).toString();
    if (head()->text() != title)
        head()->setText(title);
}

void ShownDrawing::update()
{
    {
        const SelectionSilence silence(m_scene.get()); // what is hidden is not selected
        m_drawing.update(head());
    }
    DrawingAudience::drawingChanged(&m_view);
}

void ShownDrawing::refresh()
{
    const SelectionSilence silence(m_scene.get());
    layout().refreshSpears();
}

void ShownDrawing::expandBones(bool expand)
{
    if (!head())
        return;
    const SelectionSilence silence(m_scene.get());
    layout().expandBones(expand);
}

void ShownDrawing::choose(DiagramLook::Kind kind, const DiagramLook::Options &options)
{
    m_drawing.choose(kind, options);
}

bool ShownDrawing::chooseOptions(const DiagramLook::Options &options)
{
    const bool isNew = options != m_drawing.options();
    if (isNew)
        choose(m_drawing.kind(), options);
    return isNew;
}

bool ShownDrawing::isAlone() const
{
    return m_drawing.isAlone(*m_scene, head());
}

void ShownDrawing::center(const SpearItem *spear) const
{
    if (spear)
        m_view.centerOn(spear);
}

void ShownDrawing::reveal(SpearItem *spear) const
{
    if (!spear)
        return;
    const SpearPointer shown(spear); // whoever hears of the scroll bars may end it, and the view
    const bool hasTextAlongBone = m_drawing.kind() != DiagramLook::Classic;
    m_view.ensureVisible(spear, ViewFraming::margin, ViewFraming::margin);
    if (hasTextAlongBone && shown.get())
        m_view.ensureVisible(spear->textItem(), ViewFraming::margin, ViewFraming::margin);
}
