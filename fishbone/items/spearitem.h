// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QFont>
#include <QGraphicsLineItem>
#include <QPen>

#include <fishbone/fishbone_export.h>
#include <fishbone/style/spearstyle.h>

class SpearLook;
class SpearLookData;
struct SpearParts;
class TaskStatusItem;
class TextItem;
class TreeItem;

/**
 * The graphics item of one subject: the header (the diagram's head with its backbone) or one bone
 * hanging off its parent's bone.
 *
 * The item's line is the bone, in the coordinates that the whole drawing shares (every spear
 * stands at position (0, 0)). Child spears are child items, in the row order of their subjects, so
 * that a subtree moves and dies with its root. The text box is made with the spear, the status icon
 * when it has something to show or is asked for; the link icon and the expand button are given to
 * it and become its child items as well.
 *
 * A spear shows one subject (TreeItem) and a subject knows one spear. The link is cleared from
 * both ends: whichever dies first leaves nothing dangling. A spear without a subject draws with
 * the global style and ignores everything that concerns a task.
 *
 * The layout works in passes (see FishEditor::updateFish()): initData() on every spear, then sizes
 * from the leaves up with sumChildSize(), then positions from the head down with setOffset() and
 * updatePosition(). All lengths are in scene units, all angles named "angle" in degrees.
 */
class FISHBONE_EXPORT SpearItem : public QGraphicsLineItem
{
public:
    enum { Type = UserType + 1 };

    /** What the layout needs to know of the recorded child sizes. */
    struct ChildExtents
    {
        int count = 0;                ///< of the children
        double widest = 0;            ///< the largest width of a child
        double tallest = 0;           ///< the largest height of a child
        double heightSum = 0;         ///< over all children
        double widthSum = 0;          ///< over all children
        double sideWidth[2] = {0, 0}; ///< over the children of even and of odd number

        /** Whether a parent needs as much room for both. */
        bool operator==(const ChildExtents &other) const
        {
            return count == other.count && widest == other.widest && tallest == other.tallest &&
                   heightSum == other.heightSum && widthSum == other.widthSum &&
                   sideWidth[0] == other.sideWidth[0] && sideWidth[1] == other.sideWidth[1];
        }
    };

    /**
     * The key of QGraphicsItem::data() under which a host keeps, as a text, what it shows of a bone
     * by other means, such as why the bone is pale. Assistive technology tells it with the rest.
     */
    static constexpr int noteKey = 1;

    /**
     * A spear titled @p text. @p direction is 0 for a horizontal bone, 1 or -1 for a slanted one
     * on either side of its parent; @p spearSize is the extra height of a horizontal bone.
     */
    SpearItem(const QString &text, int direction, double spearSize);
    ~SpearItem() override;

    int type() const override { return Type; }

    /**
     * @name The subject
     * @{
     */

    /**
     * Shows the subject behind @p index and its status from now on. An index that belongs to no
     * FishModel leaves the spear without a subject. A subject's spear is set through
     * TreeItem::setSpear(), which calls this.
     */
    void setModelIndex(const QModelIndex &index);
    /** Where the subject stands in its model now; invalid without a subject in a model. */
    QModelIndex modelIndex() const;
    /** The subject, or null. */
    TreeItem *treeItem() const;

    /** Whether the subject may be dragged; true without a subject. */
    bool isMovable() const;
    /** Sets or clears ItemIsMovable from isMovable(). */
    void updateMovableFlag();
    /** Stores @p status in the subject, shows it and places the companions anew. */
    void setTaskStatus(int status);
    /** Brings the status icon in line with the subject; a subject without one shows none. */
    void updateTaskStatus();
    /** Sets the tool tip to the subject's. */
    void updateToolTip();
    /** @} */

    /**
     * @name Text
     * @{
     */

    /** Sets title and tool tip. */
    void setText(const QString &text);
    /** The full title. */
    QString text() const;
    /**
     * The title as measured: cut to the style's count and, for the head of a document, without
     * the counts in parentheses.
     */
    QString textDisplay() const;
    /**
     * Brings the text box in line with title, style and current state; lays out nothing that has
     * not changed.
     */
    void updateTextMetrics();
    /** Width of the text box's document. */
    double textWidth() const;
    /** Height of the text box's document. */
    double textHeight() const;
    /** @} */

    /**
     * @name Style
     * @{
     */

    /** The subject's own style, or the global one. Never null. */
    SpearStyle *style() const;
    /** The state that @p option asks for: linked wins over hovered, hovered over selected. */
    SpearStyle::SpearState spearState(const QStyleOptionGraphicsItem *option) const;
    /** The state applied last. */
    SpearStyle::SpearState currentState() const;
    /**
     * Applies @p state: its font, text colour and line width, where they differ from what is
     * shown.
     */
    void applyState(SpearStyle::SpearState state);
    /**
     * The state that the text box shows: currentState() or the box's own, whichever is stronger.
     */
    SpearStyle::SpearState boxState() const;
    /**
     * The state that the text is drawn in: boxState(), but a linked header keeps its normal text.
     */
    SpearStyle::SpearState textState() const;
    /**
     * Whether this spear or one below it is selected, hovered or linked, its text box included.
     * Such spears lead from the header to what the user deals with.
     */
    bool standsOut() const;
    /**
     * Brings font, colour and text of the text box in line with boxState(), where they differ. The
     * text of a header stays normal while it is linked.
     */
    void updateTextLooks();

    QFont textFont(SpearStyle::SpearState state) const;     ///< a default font when unset
    QFont font() const;                                     ///< the font of the current state
    QColor textColor(SpearStyle::SpearState state) const;   ///< invalid when unset
    QColor textBkColor(SpearStyle::SpearState state) const; ///< invalid when unset
    QPen broaderPen(SpearStyle::SpearState state) const;    ///< a default pen when unset
    int textDisplayCount() const;                           ///< characters shown; below 1: all
    /** @} */

    /**
     * @name Flags
     * @{
     */

    /** Whether the spear is marked as a link target. */
    bool isLinked() const;
    /** The child row that the link circle stands before. */
    int linkNumber() const;
    /**
     * Marks the spear as a link target; @p number is the child row that the circle stands before.
     */
    void setLinked(bool linked, int number);
    /** Whether the bone is being moved. */
    bool isMoving() const;
    /** While set, the bone's line is not drawn. */
    void setMoving(bool moving);
    /** Whether the child spears are shown. */
    bool isExpand() const;
    /** Stores the flag and shows or hides every child spear. Linear in their number. */
    void setExpand(bool expand);
    /** @} */

    /**
     * @name The tree of spears
     * @{
     */

    /** True when there is no parent item: the spear is the head with the backbone. */
    bool isHeader() const { return !parentItem(); }
    /** The parent item when it is a spear; else null. */
    SpearItem *parentSpear() const;
    /** Number of item ancestors; 0 for the header. Takes a step for each level. */
    int depth() const;
    /** The child items that are spears, in stacking order. Linear in the number of child items. */
    QList<SpearItem *> childSpears() const;
    /**
     * As childSpears(), as found when a child item came or went last. Constant time from then on.
     */
    const QList<SpearItem *> &knownChildSpears() const;
    /** Number of child spears. Linear: in a loop, take childSpears() once. */
    int childCount() const { return childSpears().count(); }
    /** Child spear @p i, or null. Linear: in a loop, take childSpears() once. */
    SpearItem *childSpear(int i) const { return childSpears().value(i); }
    /**
     * Stacks the child spears in the row order of their subjects, which the layout follows. Linear
     * for each child spear that stands behind where it belongs; to bring one forward, make it the
     * last one first, by taking its parent item away and giving it back.
     */
    void stackChildrenInRowOrder();
    /** @} */

    /**
     * @name Companions
     * @{
     */

    /** The text box; a child item. */
    TextItem *textItem() const;
    /** The status icon; a child item, which is made when nothing has needed it before. */
    TaskStatusItem *statusItem() const;
    /** The link icon; a child item, null for none. */
    QGraphicsItem *linkItem() const;
    /** The expand button; a child item, null for none. */
    QGraphicsItem *expandBuddy() const;
    /**
     * Gives the spear its link icon. The spear becomes its parent and owner; the icon it replaces
     * is deleted. Null removes the icon.
     */
    void setLinkItem(QGraphicsItem *item);
    /** Gives the spear its expand button, which it owns, as setLinkItem() does; null removes it. */
    void setExpandBuddy(QGraphicsItem *item);
    /** Brings the picture of the expand button in line with isExpand(). */
    void updateExpandButton();
    /** @} */

    /**
     * @name Geometry, as the look has it
     * @{
     */

    /** What draws the spear; the classic look until another one is set. For the layout. */
    const SpearLook &look() const;
    /** Draws the spear in another look, which the next layout follows. For the layout. */
    void setLook(const std::shared_ptr<const SpearLook> &look);
    /** What the look keeps with the spear; null for nothing. */
    const SpearLookData *lookData() const;
    /** Keeps @p data, after which everything is painted anew. For the look. */
    void setLookData(std::unique_ptr<const SpearLookData> data);
    /**
     * The row that something dropped at @p scenePos gets below this spear; @p moving is what is
     * dropped, null for something else.
     */
    int dropRow(const QPointF &scenePos, const SpearItem *moving) const;

    /** As the base class does; a line that was set by hand stands until the next layout. */
    void setLine(const QLineF &line);
    /** As setLine(const QLineF &), from the coordinates of the two points. */
    void setLine(qreal x1, qreal y1, qreal x2, qreal y2) { setLine(QLineF(x1, y1, x2, y2)); }
    /** The direction of the bone, as FishEditor::directionFor() gives it. */
    int direction() const;
    /** Stores the direction; the next layout follows it. */
    void setDirection(int direction);
    /** -1: the drawing grows to the left of the head. */
    int side() const { return -1; }
    /** Extra height of a horizontal bone, as given to the constructor. */
    double spearSize() const;
    /** Distance along the parent's bone. */
    double offset() const;
    /** Adds @p distance to the offset; initData() starts it at 0. */
    void setOffset(double distance);

    /** Resets the item for a new layout: position, offset, line, recorded child sizes. Linear in
     * the number of child spears, which are shown or hidden. */
    void initData(int direction);
    /** Records the size of the next child spear. */
    void sumChildSize(const QSizeF &size);
    /** What sumChildSize() has recorded since initData(). */
    const ChildExtents &childExtents() const;
    /** Extent along the horizontal, children included. */
    double spearWidth() const;
    /**
     * Extent along the vertical of a horizontal bone, length of a slanted one; children included.
     */
    double spearHeight() const;
    /** Half the angle of the header's wedge in radians; 0 for a spear with a parent. */
    double backboneAngle() const;
    /** Sets the line from the parent's line and places the companions. The argument is not used. */
    void updatePosition(const QPointF &position);

    QRectF textRect() const; ///< what the text adds to the bounding rectangle
    /** The expand button's position. */
    QPointF expandBuddyPosition() const;
    /** The link icon's position. */
    QPointF linkBuddyPosition() const;
    /** The status icon's position. */
    QPointF TaskStateItemPosition() const;
    /** The text box's position. Also sets the text box's rotation. */
    QPointF textBuddyPosition();

    /**
     * Line, text and, for the header, pictures, as far as they are painted by the spear itself;
     * also the link circle, which lies beside a contracted bone. Linear in the child items while
     * linked.
     */
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    /** @} */

    /**
     * Stores the state that @p option asks for as the current one and draws the bone or, without
     * a parent item, the backbone between head and tail picture. Schedules no repaint when the
     * state was applied before.
     */
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

    /** How often a spear of this process has got or lost a child item. For the editor. */
    static quint64 treeChanges();
    /** What SpearPointer shares with the spear. For SpearPointer. */
    std::shared_ptr<SpearItem *> guardCell();

    /**
     * Head and tail picture, shared by all spears and deleted with the last one. A host may assign
     * others to them or to what they point at, as long as there is a spear: the next layout draws
     * them. A null pointer or pixmap draws nothing.
     */
    static QPixmap *m_pixHeader;
    static QPixmap *m_pixTail; ///< see m_pixHeader
    static int m_refCount;     ///< number of living spears

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    friend struct SpearParts; // which do all of it

    const std::unique_ptr<SpearParts> m_parts;
};
