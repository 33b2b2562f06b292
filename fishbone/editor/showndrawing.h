// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QList>

#include <fishbone/drawing/fishdrawing.h>
#include <fishbone/items/spearpointer.h>

class FishScene;
class QGraphicsItem;
class QGraphicsView;
class QModelIndex;
class TreeItem;

/** The drawing of one diagram in the scene of one view: the spears below a head, and their look. */
class ShownDrawing
{
    Q_DISABLE_COPY(ShownDrawing)

public:
    /** Shows nothing in @p view, which must live as long, in a scene that it is yet to be given. */
    explicit ShownDrawing(QGraphicsView &view);
    /** Takes the scene off the view; nobody hears of the selection that dies with it. */
    ~ShownDrawing();

    FishScene *scene() const { return m_scene.get(); }
    /** The spear on top; null when nothing is shown. */
    SpearItem *head() const { return m_head.get(); }
    /** The spear of @p subject, which may be null, when it is one of this drawing; else null. */
    SpearItem *spearOf(const TreeItem *subject) const;
    /** The selected items, spears in document order first. */
    QList<QGraphicsItem *> selectedItems() const;
    /** The first selected spear, also when its text box is what is selected; null for none. */
    SpearItem *selectedSpear() const;
    /** The index of that; invalid for none. */
    QModelIndex selectedIndex() const;

    /** Adds @p head, which may be null, with what is below it, and takes both over. */
    void show(SpearItem *head);
    /** Deletes all items. */
    void clear();
    /** Forgets the head, deletes the scene, which tells nothing of it, and leaves the view empty.
     */
    void end();

    /** Brings title and counts of the head up to date. There must be one. */
    void updateHeadText();
    /** Lays out what needs it. There must be a head. */
    void update();
    /** Brings every spear in line with its subject. There must be a head. */
    void refresh();
    /** Expands or contracts every spear but the head; nothing without one. */
    void expandBones(bool expand);
    /** A layout, for one pass. There must be a head. */
    FishLayout layout() const { return m_drawing.layout(head()); }

    const FishDrawing &drawing() const { return m_drawing; }
    /** Draws in a look from the next layout on. */
    void choose(DiagramLook::Kind kind, const DiagramLook::Options &options);
    /** Chooses what can be chosen of the looks; false when that is chosen already. */
    bool chooseOptions(const DiagramLook::Options &options);
    /** Whether the scene holds what was laid out last and nothing else, as far as that is known. */
    bool isAlone() const;

    /** Centres @p spear, which may be null. */
    void center(const SpearItem *spear) const;
    /** Scrolls @p spear, which may be null, into view with its text. */
    void reveal(SpearItem *spear) const;

private:
    QGraphicsView &m_view;
    std::unique_ptr<FishScene> m_scene;
    FishDrawing m_drawing;
    SpearPointer m_head;
};
