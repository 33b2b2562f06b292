// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitem.h>

#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/rownumbers.h>
#include <fishbone/model/stylesession.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/subjecttooltip.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitemplace.h>
#include <fishbone/style/spearstyle.h>

#include <QJsonObject>
#include <QModelIndex>

#include <utility>

namespace {

/** Empty but not null, since the file writer leaves out null strings. */
const QString &emptyText()
{
    static const QString text = QStringLiteral("");
    return text;
}

} // namespace

struct TreeItem::Extra
{
    QJsonObject otherFields;
    FishInfo *document = nullptr; // whose container the node is
};

const QString &TreeItem::noIdentity()
{
    static const QString text = QString::number(none); // which all nodes share
    return text;
}

bool TreeItem::isIdentity(const QString &text)
{
    return !text.isEmpty() && text != noIdentity();
}

TreeItem::TreeItem()
{
    initData();
}

TreeItem::TreeItem(const QString &title, const QString &uuid, const QString &showid,
                   const QString &pid, int type, TreeItem *parent)
{
    initData();
    m_parent = parent;
    m_title = title;
    m_uuid = uuid;
    m_showid = showid;
    m_pid = pid;
    m_type = type;
}

TreeItem::TreeItem(const QJsonObject &object, TreeItem *parent)
{
    initData();
    m_parent = parent;
    int known = object.contains(JsonNodes::childrenKey);
    for (const SubjectAttribute &attribute : SubjectAttribute::inKeyOrder()) {
        const QJsonValue value = object.value(attribute.key());
        known += !value.isUndefined();
        attribute.read(*this, value);
    }
    if (parent && m_pid == parent->m_uuid)
        m_pid = parent->m_uuid; // one text for all siblings
    if (known < object.size())
        setOtherFields(object);
}

TreeItem::~TreeItem()
{
    m_guard.clear();
    // Every node below is emptied before it is deleted, so that no destructor calls another.
    QList<TreeItem *> doomed;
    doomed.swap(m_children);
    while (!doomed.isEmpty()) {
        const std::unique_ptr<TreeItem> node(doomed.takeLast());
        doomed.append(node->m_children);
        node->m_children.clear();
    }
    if (m_spear)
        leaveSpear();
    delSpearStyle();
    StyleSession::nodeDies(this);
}

void TreeItem::initData()
{
    // All nodes share these texts.
    m_title = emptyText();
    m_uuid = noIdentity();
    m_showid = emptyText();
    m_pid = noIdentity();
    m_detail = emptyText();
    m_url = emptyText();
    m_managerName = emptyText();
    m_managerId = emptyText();
    m_creatorName = emptyText();
    m_creatorId = emptyText();
}

void TreeItem::setParent(TreeItem *parent)
{
    if (parent != this && (!parent || m_children.isEmpty() || !isAncestorOf(parent)))
        m_parent = parent;
}

int TreeItem::index() const
{
    if (!m_parent)
        return 0;
    return m_lister == m_parent ? rowInList() : -1;
}

/** The row in the list that holds this node; there must be one. */
int TreeItem::rowInList() const
{
    const QList<TreeItem *> &siblings = m_lister->m_children;
    return RowNumbers::find(
        m_lister->m_firstNumber, m_rowNumber, siblings.size(),
        [this, &siblings](int row) { return siblings.at(row) == this; },
        [&siblings](int row, int number) { siblings.at(row)->m_rowNumber = number; });
}

bool TreeItem::isAncestorOf(const TreeItem *node) const
{
    while (node) {
        node = node->m_lister;
        if (node == this)
            return true;
    }
    return false;
}

int TreeItem::branchOf(const TreeItem *node) const
{
    while (node && node->m_lister != this)
        node = node->m_lister;
    return node ? node->rowInList() : -1;
}

const TreeItem *TreeItem::root() const
{
    const TreeItem *top = this;
    while (top->m_lister)
        top = top->m_lister;
    return top;
}

void TreeItem::appendChild(TreeItem *child, int position)
{
    const bool inside = position >= 0 && position < childCount();
    Place(*this).insert(child, inside ? position : childCount());
}

bool TreeItem::insertChildAtPosition(int position, TreeItem *child)
{
    if (!Place(*this).insert(child, position))
        return false;
    child->m_pid = m_uuid;
    return true;
}

bool TreeItem::insertChildren(int position, int count, const QString &pid)
{
    Q_UNUSED(pid) // the identity of this node is what counts
    return Place(*this).insertNew(position, count);
}

bool TreeItem::moveChildren(int source, int count, TreeItem *destination, int destinationChild)
{
    return Place(*this).move(source, count, destination, destinationChild);
}

TreeItem *TreeItem::takeAt(int i)
{
    return Place(*this).take(i);
}

bool TreeItem::removeChildren(int position, int count)
{
    return Place(*this).remove(position, count);
}

int TreeItem::columnCount() const
{
    return 5;
}

QVariant TreeItem::data(int column) const
{
    switch (column) {
    case 0:
        return m_title;
    case 1:
        return m_uuid;
    case 2:
        return m_showid;
    case 3:
        return m_pid;
    case 4:
        return m_type;
    default:
        return QVariant();
    }
}

bool TreeItem::setData(int column, const QVariant &value)
{
    switch (column) {
    case 0:
        setTitle(value.toString());
        return true;
    case 1:
        m_uuid = value.toString();
        return true;
    case 2:
        m_showid = value.toString();
        return true;
    case 3:
        m_pid = value.toString();
        return true;
    case 4:
        // Kept, but never announced as an edit: the type is the host's.
        m_type = value.toInt();
        return false;
    default:
        return false;
    }
}

void TreeItem::setTitle(const QString &title)
{
    m_title = title;
    if (m_spear)
        showTitle();
}

bool TreeItem::ensureUuid()
{
    if (isIdentity(m_uuid))
        return false;
    m_uuid = SystemHelper::randomUuid();
    return true;
}

void TreeItem::setFollowers(const QJsonArray &followers)
{
    for (const QJsonValue &follower : followers)
        m_followers.append(follower.toString());
}

QJsonObject TreeItem::otherFields() const
{
    return m_extra ? m_extra->otherFields : QJsonObject();
}

bool TreeItem::hasOtherFields() const
{
    return m_extra && !m_extra->otherFields.isEmpty();
}

void TreeItem::setOtherFields(const QJsonObject &fields)
{
    const QJsonObject others = JsonNodes::otherFields(fields);
    if (!m_extra && others.isEmpty())
        return;
    extra().otherFields = others;
    if (m_spear)
        showStyle(*m_spear); // some of them show
}

TreeItem::Extra &TreeItem::extra()
{
    if (!m_extra)
        m_extra = std::make_unique<Extra>();
    return *m_extra;
}

/** The document whose container this node is, null for all other nodes. */
FishInfo *TreeItem::document() const
{
    return m_extra ? m_extra->document : nullptr;
}

void TreeItem::setDocument(FishInfo *document)
{
    extra().document = document;
}

void TreeItem::setUrl(const QString &url)
{
    m_url = url;
}

void TreeItem::setStatus(int status)
{
    m_status = status;
}

void TreeItem::setProgress(int progress)
{
    m_progress = progress;
}

void TreeItem::setSpearStyle(const QJsonObject &object)
{
    if (object.isEmpty()) {
        delSpearStyle();
        return;
    }
    StyleSession::discard(this, std::move(m_spearStyle));
    m_spearStyle = std::make_unique<SpearStyle>();
    m_spearStyle->read(object);
    if (m_spear)
        showStyle(*m_spear);
}

void TreeItem::delSpearStyle()
{
    if (!m_spearStyle)
        return;
    StyleSession::discard(this, std::move(m_spearStyle));
    if (m_spear)
        showStyle(*m_spear);
}

bool TreeItem::isHaveParentTask() const
{
    return isIdentity(m_pid);
}

QString TreeItem::toolTipString() const
{
    return subjectToolTip(*this);
}
