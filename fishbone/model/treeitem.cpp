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

constexpr int shownColumns = 5;

/** What a column shows: the columns are the attributes that people see first. Null for none. */
const SubjectAttribute *attributeOf(int column)
{
    const bool isShown = column >= 0 && column < shownColumns;
    return isShown ? &SubjectAttribute::all().at(column) : nullptr;
}

} // namespace

struct TreeItem::Extra
{
    QJsonObject otherFields;
    FishInfo *document = nullptr; // whose container the node is
};

/** Empty but not null, since the file writer leaves out null strings. All nodes share it. */
const QString &TreeItem::emptyText()
{
    static const QString text = QStringLiteral("");
    return text;
}

const QString &TreeItem::noIdentity()
{
    static const QString text = QString::number(none); // which all nodes share
    return text;
}

bool TreeItem::isIdentity(const QString &text)
{
    return !text.isEmpty() && text != noIdentity();
}

TreeItem::TreeItem() = default;

TreeItem::TreeItem(const QString &title, const QString &uuid, const QString &showid,
                   const QString &pid, int type, TreeItem *parent)
    : m_parent(parent)
    , m_title(title)
    , m_uuid(uuid)
    , m_showid(showid)
    , m_pid(pid)
    , m_type(type)
{
}

TreeItem::TreeItem(const QJsonObject &object, TreeItem *parent)
    : m_parent(parent)
{
    const int known = JsonNodes::readAttributes(*this, object);
    if (parent && m_pid == parent->m_uuid)
        m_pid = parent->m_uuid; // one text for all siblings
    if (known < object.size())
        setOtherFields(object);
}

TreeItem::~TreeItem()
{
    m_guard.clear();
    Place(*this).deleteAll();
    if (m_spear)
        leaveSpear();
    delSpearStyle();
    StyleSession::nodeDies(this);
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
    return shownColumns;
}

QVariant TreeItem::data(int column) const
{
    const SubjectAttribute *const shown = attributeOf(column);
    return shown ? shown->get(*this) : QVariant();
}

bool TreeItem::setData(int column, const QVariant &value)
{
    const SubjectAttribute *const shown = attributeOf(column);
    if (shown)
        shown->set(*this, value);
    // The type is kept, but never announced as an edit: it is the host's.
    return shown && shown->key() != JsonNodes::typeKey;
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
