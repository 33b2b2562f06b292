// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/guardedpointer.h>
#include <fishbone/fishbone_export.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class FishInfo;
class QJsonObject;
class QModelIndex;
class SpearItem;
class SpearStyle;

/**
 * One subject (task) of a diagram: its attributes, its children and its place in the tree.
 *
 * A node owns the children in its list and its own style. It does not own its spear, the graphics
 * item that draws it; the link between the two is cleared by whichever of them dies first.
 *
 * Changes made here directly are not announced to any view. Everything that is shown goes through
 * FishModel, which calls these operations between the proper announcements.
 *
 * The parent pointer and the place in a children list are two things: a node may name a parent that
 * does not list it (fresh from a constructor, or taken out with takeAt()). Only a listed node has a
 * row, and a node is in one list at a time. No operation here can make a node its own descendant.
 *
 * Destroying a tree takes no stack, however deep it is.
 */
class FISHBONE_EXPORT TreeItem
{
    Q_DECLARE_TR_FUNCTIONS(TreeItem)
    Q_DISABLE_COPY(TreeItem)

public:
    /** Stands for none where a number is a status or a priority. */
    static constexpr int none = -1;
    /** Stands for none where a text is an identity, a uuid or pid: the number none as a text. */
    static const QString &noIdentity();
    /** Whether @p text is an identity: neither empty nor noIdentity(). */
    static bool isIdentity(const QString &text);

    /** A node with default attributes: no title, identity, status or priority. */
    TreeItem();

    /** A node with these attributes. It names @p parent but is not added to its children. */
    TreeItem(const QString &title, const QString &uuid, const QString &showid, const QString &pid,
             int type, TreeItem *parent = nullptr);

    /**
     * A node read from one node object of the diagram format, "children" left aside.
     * Missing and mistyped keys read as defaults. It names @p parent but is not added to its
     * children.
     */
    explicit TreeItem(const QJsonObject &object, TreeItem *parent = nullptr);

    /**
     * Deletes the whole subtree and the node's own style; the spear lives on and forgets the node.
     * The node does not leave its parent's list: whoever deletes a listed node takes it out first.
     */
    ~TreeItem();

    /**
     * @name Model columns: 0 title, 1 uuid, 2 showid, 3 pid, 4 type
     * @{
     */
    /** The number of columns, the same for every node. */
    int columnCount() const;
    /** The value of @p column, or an invalid QVariant for a column that does not exist. */
    QVariant data(int column) const;
    /** Stores @p value; false for an unknown column and, although it is stored, for the type. */
    bool setData(int column, const QVariant &value);
    /** @} */

    /**
     * @name Place in the tree
     * @{
     */
    /** The node above this one, null when there is none. */
    TreeItem *parent() const { return m_parent; }
    /** Names another parent, null for none; no list changes. A parent inside the node's own subtree
     * is ignored, which takes a step for each level above it to see. */
    void setParent(TreeItem *parent);
    /** A copy of the children in display order; cheap, since the list is shared until written. */
    QList<TreeItem *> children() const { return m_children; }
    /** The children in display order, owned by the node, for loops that do not change the tree. */
    const QList<TreeItem *> &childItems() const { return m_children; }
    /** The number of children. */
    int childCount() const { return m_children.size(); }
    /** The child at @p i, null when there is none. */
    TreeItem *childAtIndex(int i) const { return m_children.value(i, nullptr); }
    /**
     * The node's row in its parent's list: 0 without a parent, -1 when the parent does not list it.
     * Constant time as long as the siblings stand still. Changes of the list, with any questions
     * between them, take no longer than the list itself takes to move its elements.
     */
    int index() const;
    /** True when this node is above @p node, following the lists; a node is not its own ancestor.
     * Takes a step for each level above @p node. */
    bool isAncestorOf(const TreeItem *node) const;
    /** The row of the child that is @p node or lies above it; -1 when none does. Takes a step for
     * each level. */
    int branchOf(const TreeItem *node) const;
    /** The topmost node that lists this one, directly or through others; itself when unlisted,
     * never null. Takes a step for each level. */
    const TreeItem *root() const;

    /**
     * Puts @p child at @p position, at the end when that is negative or past it, and names this
     * node its parent. Its pid stays. A child that another list holds leaves that list first.
     * Null, the node itself and its ancestors are ignored. The node owns what it lists.
     */
    void appendChild(TreeItem *child, int position = -1);
    /**
     * As appendChild(), and the child's pid becomes this node's uuid.
     * @p position must be in 0..childCount(). The node owns it then. False when the child cannot be
     * placed here; then nothing has changed hands.
     */
    bool insertChildAtPosition(int position, TreeItem *child);
    /**
     * Makes @p count new subjects at @p position; their pid is this node's uuid, whatever @p pid
     * says, and their uuid is empty. False when @p position is outside 0..childCount().
     */
    bool insertChildren(int position, int count, const QString &pid);
    /**
     * Moves @p count children, one after the other, each from @p source to
     * @p destinationChild + k under @p destination (one less within this node when that lies behind
     * @p source, and at the end when it lies past it). Their pid becomes the uuid of @p
     * destination, which owns them then. False, with nothing changed, for a range that does not
     * exist and for a destination below a child that would move.
     */
    bool moveChildren(int source, int count, TreeItem *destination, int destinationChild);
    /**
     * Takes the child at @p i out of the list; the caller owns it, its parent() stays.
     * Null when there is none.
     */
    TreeItem *takeAt(int i);
    /** Deletes @p count children from @p position on; false for a range that does not exist. */
    bool removeChildren(int position, int count);
    /** @} */

    /**
     * @name Attributes
     * @{
     */
    /** The text that the bone shows. */
    const QString &title() const { return m_title; }
    /** Stores the title; a linked spear shows it at once. */
    void setTitle(const QString &title);
    /** Identity of the subject, see isIdentity(). */
    const QString &uuid() const { return m_uuid; }
    /** Stores the identity; the pids of the children stay. */
    void setUuid(const QString &uuid) { m_uuid = uuid; }
    /** Gives a node without identity a random one; true when it did. */
    bool ensureUuid();
    /** The short identifier that users see. */
    const QString &showid() const { return m_showid; }
    /** Stores the short identifier. */
    void setShowid(const QString &showid) { m_showid = showid; }
    /** Uuid of the parent task, see isIdentity(). */
    const QString &pid() const { return m_pid; }
    /** Stores the uuid of the parent task; the node stays where it is. */
    void setPid(const QString &pid) { m_pid = pid; }
    /** The address that the subject is linked to, empty for none. */
    const QString &url() const { return m_url; }
    /** Stores the link; the spear is brought in line by the next layout. */
    void setUrl(const QString &url);
    /** The description, plain text. */
    const QString &detail() const { return m_detail; }
    /** Stores the description. */
    void setDetail(const QString &detail) { m_detail = detail; }
    /** The kind of task, a number of the host's. */
    int type() const { return m_type; }
    /** Stores the kind of task. */
    void setType(int type) { m_type = type; }
    /** The status of the task, a TaskStatus, or none. */
    int status() const { return m_status; }
    /** Stores the status. */
    void setStatus(int status);
    /** The progress of the task in percent. */
    int progress() const { return m_progress; }
    /** Stores the progress, in percent, unchecked. */
    void setProgress(int progress);
    /** The priority, a number of the host's, or none. */
    int priority() const { return m_priority; }
    /** Stores the priority. */
    void setPriority(int priority) { m_priority = priority; }
    /** The name of who is responsible. */
    const QString &managerName() const { return m_managerName; }
    /** Stores the name of who is responsible. */
    void setManagerName(const QString &name) { m_managerName = name; }
    /** The host's identifier of who is responsible. */
    const QString &managerId() const { return m_managerId; }
    /** Stores the identifier of who is responsible. */
    void setManagerId(const QString &id) { m_managerId = id; }
    /** The name of who made the task. */
    const QString &creatorName() const { return m_creatorName; }
    /** Stores the name of who made the task. */
    void setCreatorName(const QString &name) { m_creatorName = name; }
    /** The host's identifier of who made the task. */
    const QString &creatorId() const { return m_creatorId; }
    /** Stores the identifier of who made the task. */
    void setCreatorId(const QString &id) { m_creatorId = id; }
    /** The host's identifiers of who follows the task. */
    const QStringList &followers() const { return m_followers; }
    /** Replaces the followers. */
    void setFollowers(const QStringList &followers) { m_followers = followers; }
    /** Appends the text of each element to the followers there are. */
    void setFollowers(const QJsonArray &followers);
    /** Appends a follower. */
    void addFollower(const QString &follower) { m_followers.append(follower); }
    /** Milliseconds since the Unix epoch; 0 means unset. */
    qint64 createDate() const { return m_createDate; }
    /** Stores the creation time, in milliseconds since the Unix epoch. */
    void setCreateDate(qint64 msecs) { m_createDate = msecs; }
    /** Milliseconds since the Unix epoch; 0 means unset. */
    qint64 planEndDate() const { return m_planEndDate; }
    /** Stores the planned end, in milliseconds since the Unix epoch. */
    void setPlanEndDate(qint64 msecs) { m_planEndDate = msecs; }
    /** Whether FishModel::updateItem() changed the node. */
    bool isEditModified() const { return m_editModified; }
    /** Marks the node as changed by FishModel::updateItem(), or takes the mark away. */
    void setEditModified(bool modified) { m_editModified = modified; }
    /** Whether the node's bone may be dragged. Read from a file, but never written to one. */
    bool spearItemIsMovable() const { return m_spearItemIsMovable; }
    /**
     * Allows or forbids dragging the bone; a linked spear takes it over when its
     * updateMovableFlag() is called, as every layout does.
     */
    void setSpearItemIsMovable(bool movable) { m_spearItemIsMovable = movable; }
    /**
     * The fields of the node's object in a file that are none of the format's, as they were read.
     * They go wherever the node goes and are written as they are.
     */
    QJsonObject otherFields() const;
    /** Whether there are any. */
    bool hasOtherFields() const;
    /** Replaces otherFields(). Keys of the format are left out: they have attributes here. */
    void setOtherFields(const QJsonObject &fields);
    /** @} */

    /**
     * @name Spear
     * @{
     */
    /**
     * Links @p spear, which may be null, and hands it @p index. The spear that was linked before
     * forgets this node.
     */
    void setSpear(SpearItem *spear, const QModelIndex &index);
    /** The graphics item that draws this node; not owned, null when there is none. */
    SpearItem *spear() const { return m_spear; }
    /** @} */

    /**
     * @name Own style
     * @{
     */
    /** Replaces the own style by the one that @p object describes; an empty object removes it. */
    void setSpearStyle(const QJsonObject &object);
    /**
     * Lets the user edit the node's style in a modal dialog. A node without one gets its own, made
     * from the global style, when the dialog is accepted.
     */
    void setSpearStyle();
    /** Removes the own style; the global style applies then. */
    void delSpearStyle();
    /** The own style; owned by the node, null when the global style applies. */
    SpearStyle *spearStyle() const { return m_spearStyle.get(); }
    /** @} */

    /** True for the head of a diagram: it has a parent, and that parent has none. */
    bool isTopVaildItem() const { return m_parent && !m_parent->m_parent; }
    /** True when the pid names a task. */
    bool isHaveParentTask() const;
    /** The text for the bone's tooltip. */
    QString toolTipString() const;

    /** What pointers that outlive the node share with it. For GuardedPointer. */
    std::shared_ptr<TreeItem *> guardCell() { return m_guard.shared(this); }

private:
    friend class FishInfo;  // is known to the container of its tree
    friend class FishModel; // keeps the rows of documents in their containers

    struct Extra; // what few nodes have
    class Place;  // in a list of children

    static const QString &emptyText();
    // What concerns the spear is defined beside it, in items/subjectspear.cpp.
    void showTitle();
    void leaveSpear();
    Extra &extra();
    FishInfo *document() const;
    void setDocument(FishInfo *document);
    int rowInList() const;

    QList<TreeItem *> m_children;
    TreeItem *m_parent = nullptr;
    TreeItem *m_lister = nullptr; // the node whose list holds this one
    QString m_title = emptyText();
    QString m_uuid = noIdentity();
    QString m_showid = emptyText();
    QString m_pid = noIdentity();
    QString m_detail = emptyText();
    int m_type = 0;
    int m_status = none;
    int m_progress = 0;
    int m_priority = none;
    QString m_url = emptyText();
    QString m_managerName = emptyText();
    QString m_managerId = emptyText();
    QString m_creatorName = emptyText();
    QString m_creatorId = emptyText();
    QStringList m_followers;
    qint64 m_createDate = 0;
    qint64 m_planEndDate = 0;
    mutable int m_rowNumber = 0; // verified against the list before it is believed
    int m_firstNumber = 0;       // what the number of the first child is, or should be
    bool m_spearItemIsMovable = true;
    bool m_editModified = false;
    SpearItem *m_spear = nullptr;
    std::unique_ptr<SpearStyle> m_spearStyle;
    std::unique_ptr<Extra> m_extra;
    GuardCell<TreeItem> m_guard;
};

Q_DECLARE_METATYPE(TreeItem *)
