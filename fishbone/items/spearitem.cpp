// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearitem.h>

#include <QGraphicsSceneHoverEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <fishbone/items/expanditem.h>
#include <fishbone/items/headpictures.h>
#include <fishbone/items/hovercursor.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/stackorder.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/items/titletext.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

SpearItem::SpearItem(const QString &text, int direction, double spearSize)
    : m_text(text)
    , m_look(SpearLook::standard())
    , m_direction(direction)
    , m_spearSize(spearSize)
{
    ++m_refCount;
    HeadPictures::load();
    setToolTip(text);
    setFlags(ItemIsMovable | ItemIsSelectable | ItemSendsGeometryChanges | ItemIsPanel);
    m_textItem = new TextItem(QString(), this);
    m_statusItem = new TaskStatusItem(this, tsUnknown, 0);
    setAcceptHoverEvents(true);
    applyState(SpearStyle::ssNormal);
}

SpearItem::~SpearItem()
{
    m_guard.clear();
    if (SpearItem *const parent = standsOut() ? parentSpear() : nullptr)
        parent->changeStandingOut(-1);
    TreeItem *const subject = m_treeItem;
    m_treeItem = nullptr;
    if (subject && subject->spear() == this)
        subject->setSpear(nullptr, QModelIndex());
    if (--m_refCount == 0)
        HeadPictures::release();
}

void SpearItem::setModelIndex(const QModelIndex &index)
{
    m_model = qobject_cast<const FishModel *>(index.model());
    TreeItem *const subject = m_model ? m_model->getTreeItem(index) : nullptr;
    if (subject != m_treeItem)
        attachTreeItem(subject);
    if (subject && subject->spear() != this) {
        // Given an index directly, not through the subject: link both ends, which comes back here.
        subject->setSpear(this, index);
        return;
    }
    updateTaskStatus();
    applyState(m_currentState);
}

QModelIndex SpearItem::modelIndex() const
{
    return m_model && m_treeItem ? m_model->indexFromItem(m_treeItem) : QModelIndex();
}

/** Makes @p item the subject without touching the item's own link. */
void SpearItem::attachTreeItem(TreeItem *item)
{
    TreeItem *const previous = m_treeItem;
    m_treeItem = item;
    if (previous && previous != item && previous->spear() == this)
        previous->setSpear(nullptr, QModelIndex());
}

/** The subject is gone or has another spear. */
void SpearItem::forgetTreeItem()
{
    m_treeItem = nullptr;
    m_model.clear();
}

bool SpearItem::isMovable() const
{
    return !m_treeItem || m_treeItem->spearItemIsMovable();
}

void SpearItem::updateMovableFlag()
{
    setFlag(ItemIsMovable, isMovable());
}

void SpearItem::setTaskStatus(int status)
{
    if (!m_treeItem)
        return;
    m_treeItem->setStatus(status);
    m_statusItem->setStatus(static_cast<TaskStatus>(status));
    updatePosition(QPointF(0, 0));
}

void SpearItem::updateTaskStatus()
{
    if (!m_treeItem)
        return;
    m_statusItem->setTask(m_treeItem->status(), m_treeItem->progress());
}

void SpearItem::updateToolTip()
{
    if (m_treeItem)
        setToolTip(m_treeItem->toolTipString());
}

void SpearItem::setText(const QString &text)
{
    m_text = text;
    setToolTip(text);
    updateTextMetrics();
    update();
}

double SpearItem::textWidth() const
{
    return m_textItem->textWidth();
}

double SpearItem::textHeight() const
{
    return m_textItem->textHeight();
}

/** How many characters of the title are shown; -1 for all, whatever their number. */
int SpearItem::shownLength(const SpearStyle &style) const
{
    return TitleText::shownLength(m_text, style.textCount());
}

void SpearItem::updateTextMetrics()
{
    showText(*style());
}

void SpearItem::showText(const SpearStyle &style)
{
    // This is asked for every bone of every layout: no copy of the font, no look at the letters of
    // a text that is shown already.
    const int length = shownLength(style);
    const auto showIn = [this, length](const QFont &font) {
        const bool isShown = length < 0 ? m_textItem->shows(font, m_text)
                                        : m_textItem->shows(font, QStringView(m_text).left(length));
        if (isShown)
            return;
        prepareGeometryChange();
        m_textItem->showText(font, m_text.left(length));
    };
    if (const QFont *const set = style.textFont(textState()))
        showIn(*set);
    else
        showIn(QFont());
    // The box goes on showing the counts; only what is reported as the display text goes without.
    if (m_treeItem && m_treeItem->isTopVaildItem())
        m_textDisplay = TitleText::withoutCounts(m_text.left(length));
    else if (length >= 0 && m_textDisplay != QStringView(m_text).left(length))
        m_textDisplay = m_text.left(length);
    else if (length < 0 && !m_textDisplay.isSharedWith(m_text))
        m_textDisplay = m_text;
}

SpearStyle *SpearItem::style() const
{
    SpearStyle *const own = m_treeItem ? m_treeItem->spearStyle() : nullptr;
    return own ? own : SpearStyle::global();
}

SpearStyle::SpearState SpearItem::spearState(const QStyleOptionGraphicsItem *option) const
{
    if (m_linked)
        return SpearStyle::ssLinked;
    if (option->state & QStyle::State_MouseOver)
        return SpearStyle::ssHovered;
    if (option->state & QStyle::State_Selected)
        return SpearStyle::ssSelected;
    return SpearStyle::ssNormal;
}

SpearStyle::SpearState SpearItem::interactionState() const
{
    QStyleOptionGraphicsItem option;
    option.state.setFlag(QStyle::State_MouseOver, m_hovered);
    option.state.setFlag(QStyle::State_Selected, isSelected());
    return spearState(&option);
}

SpearStyle::SpearState SpearItem::boxState() const
{
    return qMax(m_currentState, m_textItem->ownState()); // they are numbered by their strength
}

SpearStyle::SpearState SpearItem::textState() const
{
    const SpearStyle::SpearState state = boxState();
    return state == SpearStyle::ssLinked && isHeader() ? SpearStyle::ssNormal : state;
}

void SpearItem::updateTextLooks()
{
    showLooks(*style());
}

void SpearItem::showLooks(const SpearStyle &style)
{
    showText(style);
    m_textItem->showColor(style.textColor(textState()));
    showBox(style);
    noteStandingOut();
}

/** Has the text box painted anew when what it paints behind and around its text is another. */
void SpearItem::showBox(const SpearStyle &style)
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
    m_textItem->update();
}

/** Has the bone painted anew when the subject may be moved now, or no longer. */
void SpearItem::showMovability()
{
    if (m_painted.isMovable == isMovable())
        return;
    m_painted.isMovable = isMovable();
    update();
}

void SpearItem::applyState(SpearStyle::SpearState state)
{
    const SpearStyle &applied = *style();
    m_currentState = state;
    showLooks(applied);
    showPen(applied);
    showMovability();
    showButton();
}

void SpearItem::showPen(const SpearStyle &style)
{
    if (const QPen *const set = style.broderPen(m_currentState))
        setPen(*set);
    else
        setPen(QPen());
}

QFont SpearItem::textFont(SpearStyle::SpearState state) const
{
    const QFont *const set = style()->textFont(state);
    return set ? *set : QFont();
}

QFont SpearItem::font() const
{
    return textFont(m_currentState);
}

QColor SpearItem::textColor(SpearStyle::SpearState state) const
{
    return style()->textColor(state);
}

QColor SpearItem::textBkColor(SpearStyle::SpearState state) const
{
    return style()->textBkColor(state);
}

QPen SpearItem::broaderPen(SpearStyle::SpearState state) const
{
    const QPen *const set = style()->broderPen(state);
    return set ? *set : QPen();
}

int SpearItem::textDisplayCount() const
{
    return style()->textCount();
}

void SpearItem::setLinked(bool linked, int number)
{
    prepareGeometryChange(); // the circle may lie outside the bone
    m_linked = linked;
    m_linkNumber = number;
    applyState(interactionState());
    update();
    m_textItem->update();
}

void SpearItem::setMoving(bool moving)
{
    if (m_moving == moving)
        return;
    m_moving = moving;
    update();
}

void SpearItem::setExpand(bool expand)
{
    m_expand = expand;
    update();
    showChildren(); // the last: who hears of the selection may end the spear
}

void SpearItem::showChildren()
{
    const QList<SpearItem *> children = knownChildSpears();
    const SelectionSilence silence(scene()); // what is hidden is not selected any more
    for (SpearItem *child : children)
        child->setVisible(m_expand);
}

int SpearItem::depth() const
{
    int ancestors = 0;
    for (const QGraphicsItem *item = parentItem(); item; item = item->parentItem())
        ++ancestors;
    return ancestors;
}

QList<SpearItem *> SpearItem::childSpears() const
{
    QList<SpearItem *> spears;
    const QList<QGraphicsItem *> items = childItems();
    for (QGraphicsItem *item : items) {
        if (auto *const spear = qgraphicsitem_cast<SpearItem *>(item))
            spears.append(spear);
    }
    return spears;
}

void SpearItem::forgetChildSpears()
{
    m_childSpears.clear(); // one of them may be dying
    m_knowsChildSpears = false;
    ++m_treeChanges;
}

const QList<SpearItem *> &SpearItem::knownChildSpears() const
{
    if (!m_knowsChildSpears) {
        m_childSpears = childSpears();
        m_knowsChildSpears = true;
    }
    return m_childSpears;
}

void SpearItem::stackChildrenInRowOrder()
{
    if (!m_treeItem)
        return;
    forgetChildSpears();
    QList<QGraphicsItem *> inRowOrder;
    for (const TreeItem *subject : m_treeItem->childItems()) {
        if (subject->spear() && subject->spear()->parentItem() == this)
            inRowOrder.append(subject->spear());
    }
    StackOrder::arrange(this, inRowOrder);
}

SpearItem *SpearItem::parentSpear() const
{
    return qgraphicsitem_cast<SpearItem *>(parentItem());
}

void SpearItem::setCompanion(QGraphicsItem *&companion, QGraphicsItem *item)
{
    if (item == companion)
        return;
    const std::unique_ptr<QGraphicsItem> replaced(companion);
    companion = item;
    if (item)
        item->setParentItem(this);
}

void SpearItem::setLinkItem(QGraphicsItem *item)
{
    setCompanion(m_linkItem, item);
    if (m_linkItem)
        m_linkItem->setPos(linkBuddyPosition());
}

void SpearItem::setExpandBuddy(QGraphicsItem *item)
{
    setCompanion(m_expandBuddy, item);
    m_isButtonHidden = false;
    if (m_expandBuddy)
        m_expandBuddy->setPos(expandBuddyPosition());
}

void SpearItem::updateExpandButton()
{
    if (auto *const button = qgraphicsitem_cast<ExpandItem *>(m_expandBuddy))
        button->updateSvgIcon();
    else
        setExpandBuddy(std::make_unique<ExpandItem>(this).release());
}

QVariant SpearItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    const QVariant result = QGraphicsLineItem::itemChange(change, value);
    if (change == ItemSelectedHasChanged) {
        // Applied here rather than by the next paint, which must find nothing to change.
        applyState(interactionState());
        m_textItem->update();
    } else if (change == ItemSceneHasChanged && m_hovered) {
        m_hovered = false; // the scene that it left sends no further event
        applyState(interactionState());
    } else if (change == ItemParentChange && standsOut() && parentSpear()) {
        parentSpear()->changeStandingOut(-1);
    } else if (change == ItemParentHasChanged && standsOut() && parentSpear()) {
        parentSpear()->changeStandingOut(1);
    } else if (change == ItemChildAddedChange) {
        forgetChildSpears();
    } else if (change == ItemChildRemovedChange) {
        forgetChildSpears();
        // A companion that dies or is given to somebody else is forgotten.
        const auto *const removed = value.value<QGraphicsItem *>();
        if (removed == m_linkItem)
            m_linkItem = nullptr;
        if (removed == m_expandBuddy)
            m_expandBuddy = nullptr;
    }
    return result;
}

void SpearItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    m_hovered = true;
    applyState(interactionState());
    update();
    m_textItem->update();
    showHoverCursor(*this, event->scenePos());
    updateToolTip();
    QGraphicsLineItem::hoverEnterEvent(event);
}

void SpearItem::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    showHoverCursor(*this, event->scenePos());
    QGraphicsLineItem::hoverMoveEvent(event);
}

void SpearItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    m_hovered = false;
    applyState(interactionState());
    update();
    m_textItem->update();
    showArrowCursor(*this);
    QGraphicsLineItem::hoverLeaveEvent(event);
}
