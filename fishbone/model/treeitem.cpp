// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitem.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QJsonObject>
#include <QModelIndex>

#include <cmath>
#include <utility>

namespace {

/** The text that stands for "no task" wherever an identity is stored. */
const QString &noTask()
{
    static const QString text = QStringLiteral("-1");
    return text;
}

/** Empty but not null, since the file writer leaves out null strings. */
const QString &emptyText()
{
    static const QString text = QStringLiteral("");
    return text;
}

bool namesTask(const QString &identity)
{
    return !identity.isEmpty() && identity != noTask();
}

/** An instant as a file holds it; one that 64 bits cannot hold counts as unset. */
qint64 dateFrom(const QJsonValue &value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double msecs = value.toDouble();
    return msecs > -limit && msecs < limit ? std::llround(msecs) : 0;
}

/**
 * A node whose style the user edits. The dialog runs its own event loop, in which the node can die:
 * its style then waits here until the dialog is done with it.
 */
class StyleSession
{
    Q_DISABLE_COPY(StyleSession)

public:
    explicit StyleSession(TreeItem *node)
        : m_node(node)
        , m_outer(std::exchange(innermost, this))
    {
    }
    ~StyleSession() { innermost = m_outer; }

    bool nodeLives() const { return m_node; }

    static void nodeDies(const TreeItem *node)
    {
        for (StyleSession *session = innermost; session; session = session->m_outer) {
            if (session->m_node == node)
                session->m_node = nullptr;
        }
    }
    /** Deletes @p style, later when it is being edited. */
    static void discard(const TreeItem *node, std::unique_ptr<SpearStyle> style)
    {
        for (StyleSession *session = innermost; session && style; session = session->m_outer) {
            if (session->m_node == node && !session->m_kept)
                session->m_kept = std::move(style);
        }
    }

private:
    static StyleSession *innermost;

    TreeItem *m_node;
    StyleSession *m_outer;
    std::unique_ptr<SpearStyle> m_kept;
};

StyleSession *StyleSession::innermost = nullptr;

} // namespace

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
    using namespace JsonNodes;

    initData();
    m_parent = parent;
    const auto readText = [&object](QLatin1String key, QString &text) {
        const QJsonValue value = object.value(key);
        if (!value.isUndefined())
            text = value.toString();
    };
    const auto readNumber = [&object](QLatin1String key, int &number) {
        const QJsonValue value = object.value(key);
        if (!value.isUndefined())
            number = value.toInt(0);
    };

    m_title = object.value(titleKey).toString();
    m_uuid = object.value(uuidKey).toString();
    m_showid = object.value(showidKey).toString();
    readText(pidKey, m_pid);
    if (parent && m_pid == parent->m_uuid)
        m_pid = parent->m_uuid; // one text for all siblings
    readText(detailKey, m_detail);
    readNumber(priorityKey, m_priority);
    readNumber(typeKey, m_type);
    readNumber(statusKey, m_status);
    readNumber(progressKey, m_progress);
    const QJsonValue style = object.value(spearStyleKey);
    if (style.isObject())
        setSpearStyle(style.toObject());
    readText(urlKey, m_url);
    readText(managerNameKey, m_managerName);
    readText(managerIdKey, m_managerId);
    readText(creatorNameKey, m_creatorName);
    readText(creatorIdKey, m_creatorId);
    const QJsonValue followers = object.value(followersKey);
    if (!followers.isUndefined())
        setFollowers(followers.toArray());
    m_createDate = dateFrom(object.value(createDateKey));
    m_planEndDate = dateFrom(object.value(planEndDateKey));
    const QJsonValue movable = object.value(isMovableKey);
    if (!movable.isUndefined())
        m_spearItemIsMovable = movable.toBool(false);
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
    if (m_spear && m_spear->treeItem() == this)
        m_spear->forgetTreeItem();
    delSpearStyle();
    StyleSession::nodeDies(this);
}

void TreeItem::initData()
{
    // All nodes share these texts.
    m_title = emptyText();
    m_uuid = noTask();
    m_showid = emptyText();
    m_pid = noTask();
    m_detail = emptyText();
    m_url = emptyText();
    m_managerName = emptyText();
    m_managerId = emptyText();
    m_creatorName = emptyText();
    m_creatorId = emptyText();
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
        m_spear->setText(m_title);
}

bool TreeItem::ensureUuid()
{
    if (namesTask(m_uuid))
        return false;
    m_uuid = SystemHelper::randomUuid();
    return true;
}

void TreeItem::setFollowers(const QJsonArray &followers)
{
    for (const QJsonValue &follower : followers)
        m_followers.append(follower.toString());
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

void TreeItem::setSpear(SpearItem *spear, const QModelIndex &index)
{
    if (m_spear && m_spear != spear) {
        SpearItem *const former = std::exchange(m_spear, nullptr);
        if (former->treeItem() == this)
            former->forgetTreeItem();
    }
    m_spear = spear;
    if (!spear)
        return;
    spear->setModelIndex(index);
    m_spear = spear; // an index of another node, or of none, made the spear leave this one
    if (spear->treeItem() != this)
        spear->attachTreeItem(this);
    spear->updateMovableFlag();
}

void TreeItem::setSpearStyle(const QJsonObject &object)
{
    delSpearStyle();
    if (object.isEmpty())
        return;
    m_spearStyle = std::make_unique<SpearStyle>();
    m_spearStyle->read(object);
}

void TreeItem::setSpearStyle()
{
    const StyleSession session(this);
    if (m_spearStyle) {
        SpearStyleDialog(*m_spearStyle).exec();
        return;
    }
    QJsonObject values;
    SpearStyle::global()->write(values);
    SpearStyle scratch;
    scratch.read(values);
    const bool accepted = SpearStyleDialog(scratch).exec() == QDialog::Accepted;
    if (!accepted || !session.nodeLives())
        return;
    scratch.write(values);
    setSpearStyle(values);
}

void TreeItem::delSpearStyle()
{
    if (!m_spearStyle)
        return;
    StyleSession::discard(this, std::move(m_spearStyle));
}

bool TreeItem::isHaveParentTask() const
{
    return namesTask(m_pid);
}

QString TreeItem::toolTipString() const
{
    QString text;
    if (!m_showid.isEmpty())
        text += m_showid + QLatin1Char(' ');
    text += m_title;
    const auto addLine = [&text](const QString &label, const QString &value) {
        text += QLatin1String("\n ") + label + value;
    };
    if (!m_managerName.isEmpty())
        addLine(tr("负责人:"), m_managerName);
    if (m_createDate != 0)
        addLine(tr("创建时间:"), SystemHelper::stringFromDateTimeMsecs(m_createDate));
    if (m_planEndDate != 0)
        addLine(tr("截止时间:"), SystemHelper::stringFromDateTimeMsecs(m_planEndDate));
    return text;
}
