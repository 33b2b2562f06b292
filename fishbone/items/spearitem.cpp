// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearitem.h>

#include <QGraphicsSceneHoverEvent>

#include <fishbone/items/hovercursor.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/items/textitem.h>

QPixmap *SpearItem::m_pixHeader = nullptr;
QPixmap *SpearItem::m_pixTail = nullptr;
int SpearItem::m_refCount = 0;

SpearItem::SpearItem(const QString &text, int direction, double spearSize)
    : m_parts(std::make_unique<SpearParts>(*this, text, direction, spearSize))
{
    m_parts->begin();
}

SpearItem::~SpearItem()
{
    m_parts->end();
}

void SpearItem::setModelIndex(const QModelIndex &index)
{
    m_parts->subject.setIndex(index);
}

QModelIndex SpearItem::modelIndex() const
{
    return m_parts->subject.index();
}

TreeItem *SpearItem::treeItem() const
{
    return m_parts->subject.item();
}

bool SpearItem::isMovable() const
{
    return m_parts->subject.isMovable();
}

void SpearItem::updateMovableFlag()
{
    m_parts->subject.updateMovableFlag();
}

void SpearItem::setTaskStatus(int status)
{
    m_parts->companions.setStatus(status);
}

void SpearItem::updateTaskStatus()
{
    m_parts->companions.updateStatus();
}

void SpearItem::updateToolTip()
{
    m_parts->subject.updateToolTip();
}

void SpearItem::setText(const QString &text)
{
    m_parts->title.setText(text);
}

QString SpearItem::text() const
{
    return m_parts->title.text();
}

QString SpearItem::textDisplay() const
{
    return m_parts->title.shownText();
}

void SpearItem::updateTextMetrics()
{
    m_parts->title.show(*style());
}

double SpearItem::textWidth() const
{
    return textItem()->textWidth();
}

double SpearItem::textHeight() const
{
    return textItem()->textHeight();
}

SpearStyle *SpearItem::style() const
{
    return m_parts->subject.style();
}

SpearStyle::SpearState SpearItem::spearState(const QStyleOptionGraphicsItem *option) const
{
    return m_parts->appearance.stateOf(*option);
}

SpearStyle::SpearState SpearItem::currentState() const
{
    return m_parts->appearance.state();
}

void SpearItem::applyState(SpearStyle::SpearState state)
{
    m_parts->appearance.apply(state);
}

SpearStyle::SpearState SpearItem::boxState() const
{
    return m_parts->appearance.boxState();
}

SpearStyle::SpearState SpearItem::textState() const
{
    return m_parts->appearance.textState();
}

bool SpearItem::standsOut() const
{
    return m_parts->chain.standsOut();
}

void SpearItem::updateTextLooks()
{
    m_parts->appearance.showText(*style());
}

QFont SpearItem::textFont(SpearStyle::SpearState state) const
{
    const QFont *const set = style()->textFont(state);
    return set ? *set : QFont();
}

QFont SpearItem::font() const
{
    return textFont(currentState());
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

bool SpearItem::isLinked() const
{
    return m_parts->appearance.isLinked();
}

int SpearItem::linkNumber() const
{
    return m_parts->appearance.linkNumber();
}

void SpearItem::setLinked(bool linked, int number)
{
    m_parts->appearance.setLinked(linked, number);
}

bool SpearItem::isMoving() const
{
    return m_parts->appearance.isMoving();
}

void SpearItem::setMoving(bool moving)
{
    m_parts->appearance.setMoving(moving);
}

bool SpearItem::isExpand() const
{
    return m_parts->children.areShown();
}

void SpearItem::setExpand(bool expand)
{
    m_parts->children.setShown(expand);
}

SpearItem *SpearItem::parentSpear() const
{
    return qgraphicsitem_cast<SpearItem *>(parentItem());
}

int SpearItem::depth() const
{
    return m_parts->chain.depth();
}

QList<SpearItem *> SpearItem::childSpears() const
{
    return m_parts->children.find();
}

const QList<SpearItem *> &SpearItem::knownChildSpears() const
{
    return m_parts->children.known();
}

void SpearItem::stackChildrenInRowOrder()
{
    m_parts->children.stackInRowOrder();
}

TextItem *SpearItem::textItem() const
{
    return m_parts->companions.text();
}

TaskStatusItem *SpearItem::statusItem() const
{
    return m_parts->companions.status();
}

QGraphicsItem *SpearItem::linkItem() const
{
    return m_parts->companions.link();
}

QGraphicsItem *SpearItem::expandBuddy() const
{
    return m_parts->companions.button();
}

void SpearItem::setLinkItem(QGraphicsItem *item)
{
    m_parts->companions.setLink(item);
}

void SpearItem::setExpandBuddy(QGraphicsItem *item)
{
    m_parts->companions.setButton(item);
}

void SpearItem::updateExpandButton()
{
    m_parts->companions.updateButton();
}

const SpearLook &SpearItem::look() const
{
    return m_parts->place.look();
}

void SpearItem::setLook(const std::shared_ptr<const SpearLook> &look)
{
    m_parts->place.setLook(look);
}

const SpearLookData *SpearItem::lookData() const
{
    return m_parts->place.lookData();
}

void SpearItem::setLookData(std::unique_ptr<const SpearLookData> data)
{
    m_parts->place.setLookData(std::move(data));
}

int SpearItem::dropRow(const QPointF &scenePos, const SpearItem *moving) const
{
    return m_parts->place.dropRow(scenePos, moving);
}

void SpearItem::setLine(const QLineF &line)
{
    QGraphicsLineItem::setLine(line);
}

int SpearItem::direction() const
{
    return m_parts->place.direction();
}

void SpearItem::setDirection(int direction)
{
    m_parts->place.setDirection(direction);
}

double SpearItem::spearSize() const
{
    return m_parts->place.spearSize();
}

double SpearItem::offset() const
{
    return m_parts->place.offset();
}

void SpearItem::setOffset(double distance)
{
    m_parts->place.addOffset(distance);
}

void SpearItem::initData(int direction)
{
    m_parts->place.reset(direction);
    m_parts->children.show();
}

void SpearItem::sumChildSize(const QSizeF &size)
{
    m_parts->place.addChild(size);
}

const SpearItem::ChildExtents &SpearItem::childExtents() const
{
    return m_parts->place.children();
}

double SpearItem::spearWidth() const
{
    return look().width(*this);
}

double SpearItem::spearHeight() const
{
    return look().height(*this);
}

double SpearItem::backboneAngle() const
{
    return look().backboneAngle(*this);
}

void SpearItem::updatePosition(const QPointF &position)
{
    Q_UNUSED(position)
    m_parts->place.setBelow(parentSpear());
}

QRectF SpearItem::textRect() const
{
    return look().textRect(*this);
}

QPointF SpearItem::expandBuddyPosition() const
{
    return look().buttonPosition(*this);
}

QPointF SpearItem::linkBuddyPosition() const
{
    return look().linkPosition(*this);
}

QPointF SpearItem::TaskStateItemPosition() const
{
    return look().statusPosition(*this);
}

QPointF SpearItem::textBuddyPosition()
{
    m_parts->companions.turnText();
    return look().textPosition(*this);
}

QRectF SpearItem::boundingRect() const
{
    return m_parts->place.boundingRect();
}

QPainterPath SpearItem::shape() const
{
    return look().shape(*this);
}

void SpearItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Q_UNUSED(widget)
    applyState(spearState(option));
    m_parts->place.paint(*painter);
}

quint64 SpearItem::treeChanges()
{
    return SpearChildren::changes();
}

std::shared_ptr<SpearItem *> SpearItem::guardCell()
{
    return m_parts->guard.shared(this);
}

QVariant SpearItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    const QVariant result = QGraphicsLineItem::itemChange(change, value);
    m_parts->follow(change, value);
    return result;
}

void SpearItem::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    m_parts->appearance.enter(*event);
    QGraphicsLineItem::hoverEnterEvent(event);
}

void SpearItem::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    showHoverCursor(*this, event->scenePos());
    QGraphicsLineItem::hoverMoveEvent(event);
}

void SpearItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    m_parts->appearance.leave();
    QGraphicsLineItem::hoverLeaveEvent(event);
}
