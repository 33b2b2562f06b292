// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearappearance.h>

#include <QGraphicsSceneHoverEvent>
#include <QStyleOptionGraphicsItem>

#include <fishbone/items/hovercursor.h>
#include <fishbone/items/spearchain.h>
#include <fishbone/items/spearcompanions.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/items/speartitle.h>
#include <fishbone/items/textitem.h>

SpearAppearance::SpearAppearance(SpearItem &spear, SpearCompanions &companions, SpearTitle &title,
                                 SpearChain &chain)
    : m_spear(spear)
    , m_companions(companions)
    , m_title(title)
    , m_chain(chain)
{
}

SpearStyle::SpearState SpearAppearance::stateOf(const QStyleOptionGraphicsItem &option) const
{
    if (m_isLinked)
        return SpearStyle::ssLinked;
    if (option.state & QStyle::State_MouseOver)
        return SpearStyle::ssHovered;
    if (option.state & QStyle::State_Selected)
        return SpearStyle::ssSelected;
    return SpearStyle::ssNormal;
}

SpearStyle::SpearState SpearAppearance::boxState() const
{
    return qMax(m_state, m_companions.text()->ownState()); // they are numbered by their strength
}

SpearStyle::SpearState SpearAppearance::textState() const
{
    const SpearStyle::SpearState state = boxState();
    return state == SpearStyle::ssLinked && m_spear.isHeader() ? SpearStyle::ssNormal : state;
}

void SpearAppearance::apply(SpearStyle::SpearState state)
{
    const SpearStyle &style = *m_spear.style();
    m_state = state;
    showText(style);
    showPen(style);
    showMovability();
    m_companions.showButton();
}

void SpearAppearance::showText(const SpearStyle &style)
{
    m_title.show(style);
    m_companions.text()->showColor(style.textColor(textState()));
    showBox(style);
    m_chain.note(boxState() != SpearStyle::ssNormal);
}

/** Has the text box painted anew when what it paints behind and around its text is another. */
void SpearAppearance::showBox(const SpearStyle &style)
{
    const SpearStyle::SpearState state = boxState();
    if (state == SpearStyle::ssNormal)
        return; // nothing but the text
    const QColor background = style.textBkColor(state);
    const QPen *const set = style.broderPen(state);
    const QPen frame = set ? *set : QPen();
    if (m_painted.background == background && m_painted.frame == frame)
        return;
    m_painted.background = background;
    m_painted.frame = frame;
    m_companions.text()->update();
}

/** Has the bone painted anew when the subject may be moved now, or no longer. */
void SpearAppearance::showMovability()
{
    if (m_painted.isMovable == m_spear.isMovable())
        return;
    m_painted.isMovable = m_spear.isMovable();
    m_spear.update();
}

void SpearAppearance::showPen(const SpearStyle &style)
{
    if (const QPen *const set = style.broderPen(m_state))
        m_spear.setPen(*set);
    else
        m_spear.setPen(QPen());
}

/** Applied by events rather than by the next paint, which must find nothing to change. */
void SpearAppearance::applyInteraction()
{
    QStyleOptionGraphicsItem option;
    option.state.setFlag(QStyle::State_MouseOver, m_isHovered);
    option.state.setFlag(QStyle::State_Selected, m_spear.isSelected());
    apply(stateOf(option));
}

void SpearAppearance::repaint()
{
    m_spear.update();
    m_companions.text()->update();
}

void SpearAppearance::setLinked(bool linked, int number)
{
    SpearParts::geometryChanges(m_spear); // the circle may lie outside the bone
    m_isLinked = linked;
    m_linkNumber = number;
    applyInteraction();
    repaint();
}

void SpearAppearance::setMoving(bool moving)
{
    if (m_isMoving == moving)
        return;
    m_isMoving = moving;
    m_spear.update();
}

void SpearAppearance::enter(const QGraphicsSceneHoverEvent &event)
{
    m_isHovered = true;
    applyInteraction();
    repaint();
    showHoverCursor(m_spear, event.scenePos());
    m_spear.updateToolTip();
}

void SpearAppearance::leave()
{
    m_isHovered = false;
    applyInteraction();
    repaint();
    showArrowCursor(m_spear);
}

void SpearAppearance::leaveScene()
{
    if (!m_isHovered)
        return;
    m_isHovered = false;
    applyInteraction();
}

void SpearAppearance::followSelection()
{
    applyInteraction();
    m_companions.text()->update();
}
