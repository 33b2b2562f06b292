// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QPen>

#include <fishbone/style/spearstyle.h>

class QGraphicsSceneHoverEvent;
class QStyleOptionGraphicsItem;
class SpearChain;
class SpearCompanions;
class SpearItem;
class SpearTitle;

/** The state of a spear, from what the user does to it, and what the spear shows of it. */
class SpearAppearance
{
public:
    /** That of @p spear, which is normal to begin with. */
    SpearAppearance(SpearItem &spear, SpearCompanions &companions, SpearTitle &title,
                    SpearChain &chain);

    /** See SpearItem::spearState(). */
    SpearStyle::SpearState stateOf(const QStyleOptionGraphicsItem &option) const;
    /** The state applied last. */
    SpearStyle::SpearState state() const { return m_state; }
    /** See SpearItem::boxState(). */
    SpearStyle::SpearState boxState() const;
    /** See SpearItem::textState(). */
    SpearStyle::SpearState textState() const;
    /** See SpearItem::applyState(). */
    void apply(SpearStyle::SpearState state);
    /** Brings font, colour, text and box in line with boxState() and @p style. */
    void showText(const SpearStyle &style);

    /** Whether the spear is marked as a link target. */
    bool isLinked() const { return m_isLinked; }
    /** The child row that the link circle stands before. */
    int linkNumber() const { return m_linkNumber; }
    /** See SpearItem::setLinked(). */
    void setLinked(bool linked, int number);
    /** Whether the bone is being moved. */
    bool isMoving() const { return m_isMoving; }
    /** While set, the line is not drawn. */
    void setMoving(bool moving);

    /** The mouse comes over the spear. */
    void enter(const QGraphicsSceneHoverEvent &event);
    /** The mouse leaves the spear. */
    void leave();
    /** The spear left its scene, which sends no further event. */
    void leaveScene();
    /** The spear was selected, or is no longer. */
    void followSelection();

private:
    Q_DISABLE_COPY(SpearAppearance)

    /** What was painted, or is about to be, of what no item keeps. */
    struct Painted
    {
        QColor background; ///< of the text box; invalid for none
        QPen frame;        ///< of the text box
        bool isMovable = true;
    };

    void applyInteraction();
    void repaint();
    void showBox(const SpearStyle &style);
    void showMovability();
    void showPen(const SpearStyle &style);

    SpearItem &m_spear;
    SpearCompanions &m_companions;
    SpearTitle &m_title;
    SpearChain &m_chain;
    Painted m_painted;
    SpearStyle::SpearState m_state = SpearStyle::ssNormal;
    int m_linkNumber = 0;
    bool m_isLinked = false;
    bool m_isMoving = false;
    bool m_isHovered = false;
};
