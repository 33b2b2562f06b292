// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/tablemapping.h>

#include <QHash>
#include <QRegularExpression>

namespace {

using Role = TableMapping::Role;

struct RoleEntry
{
    Role role;
    const char *name;     ///< for TableMapping::tr()
    const char *headings; ///< separated by bars, the surest first
    bool isSingle;        ///< only one column has that role
};

const RoleEntry entries[] = {
    {Role::Other, QT_TRANSLATE_NOOP("TableMapping", "Details"), "", false},
    {Role::Title, QT_TRANSLATE_NOOP("TableMapping", "Title"),
     "title|summary|subject|short desc|short description|short summary|task name|issue title|"
     "issue summary|card name|card title|story title|bug title|name|task|to do|topic|heading|"
     "headline|work item|item|story|issue|action|action "
     "item|what|cause|problem|finding|text|content|"
     "标题|主题|概要|摘要|任务名称|任务标题|需求名称|需求标题|缺陷标题|bug标题|工作项|事项|"
     "事项名称|"
     "名称|任务|卡片名称|卡片|待办|待办事项|问题|原因|措施|对策",
     true},
    {Role::Path, QT_TRANSLATE_NOOP("TableMapping", "Title of one level"), "", false},
    {Role::Id, QT_TRANSLATE_NOOP("TableMapping", "Id"),
     "id|key|issue key|issue id|task id|card id|story id|bug id|item id|gid|iid|issue iid|"
     "work item id|ticket|ticket id|number|issue number|no|nr|#|unique id|编号|序号|问题关键字|"
     "关键字|键值|任务编号|任务id|问题id|需求id|需求编号|缺陷id|bug编号|事项编号|工单号|号码",
     false},
    {Role::Uuid, QT_TRANSLATE_NOOP("TableMapping", "Uuid"), "uuid", true},
    {Role::ShortId, QT_TRANSLATE_NOOP("TableMapping", "Short id"), "short id|showid", true},
    {Role::Parent, QT_TRANSLATE_NOOP("TableMapping", "Parent"),
     "parent|parent id|parent key|parent issue|parent task|parent task id|parentid|parent title|"
     "parent name|parent item|parent card|parent link|parent work item|parent ticket|subtask of|"
     "sub task of|epic link|epic key|epic id|epic|父任务|上级任务|父级|父项|上级|父编号|父任务id|"
     "父id|父工作项|父问题|父需求|父缺陷|父事项|史诗链接|史诗|所属任务",
     false},
    {Role::Level, QT_TRANSLATE_NOOP("TableMapping", "Level"),
     "level|outline level|indent|indentation|indent level|depth|hierarchy level|层级|级别|大纲级别|"
     "缩进|层次",
     true},
    {Role::Outline, QT_TRANSLATE_NOOP("TableMapping", "Outline number"),
     "wbs|outline number|wbs code|outline|大纲数字|大纲编号|wbs编号", true},
    {Role::Status, QT_TRANSLATE_NOOP("TableMapping", "Status"),
     "status|state|current state|issue state|task status|bug status|status name|状态|任务状态|"
     "当前状态|需求状态|缺陷状态|bug状态|处理状态|list name|section/column|"
     "看板列|所属列表",
     true},
    {Role::Progress, QT_TRANSLATE_NOOP("TableMapping", "Progress"),
     "progress|% done|% complete|%done|%complete|percent complete|percent done|percentage|"
     "done ratio|completion|percentage complete|进度|完成度|完成百分比|% "
     "完成|%完成|完成率|完成比例",
     true},
    {Role::Priority, QT_TRANSLATE_NOOP("TableMapping", "Priority"),
     "priority|priority name|优先级|优先度|优先级别|紧急程度", true},
    {Role::Manager, QT_TRANSLATE_NOOP("TableMapping", "Manager"),
     "manager|assignee|assigned to|assignees|owner|owned by|responsible|assignee name|assign|"
     "responsible person|action owner|resource names|resource|person|people|who|负责人|经办人|"
     "处理人|当前处理人|指派给|执行人|责任人|受理人|执行者|承办人|跟进人",
     true},
    {Role::ManagerId, QT_TRANSLATE_NOOP("TableMapping", "Manager's id"),
     "manager id|assignee id|assignee username|assignee email|assignee e mail|经办人id|负责人id",
     true},
    {Role::Creator, QT_TRANSLATE_NOOP("TableMapping", "Creator"),
     "creator|author|reporter|creator name|author name|reporter name|requested by|created "
     "by|reported by|raised by|requester|submitter|"
     "opened by|创建人|创建者|由谁创建|作者|报告人|提出人|发起人|提交人",
     true},
    {Role::CreatorId, QT_TRANSLATE_NOOP("TableMapping", "Creator's id"),
     "creator id|author id|author username|reporter id|author email|创建人id|报告人id", true},
    {Role::Followers, QT_TRANSLATE_NOOP("TableMapping", "Followers"),
     "followers|watchers|collaborators|members|participants|subscribers|cc|cc list|关注者|关注人|"
     "参与人|参与者|协作者|成员|抄送|抄送给",
     false},
    {Role::Created, QT_TRANSLATE_NOOP("TableMapping", "Created"),
     "created|created at|created on|creation date|date created|created date|created time|opened at|"
     "opened|date raised|创建时间|创建日期|创建于|创建|提出时间|提出日期|提交时间",
     true},
    {Role::PlannedEnd, QT_TRANSLATE_NOOP("TableMapping", "Planned end"),
     "planned end|due date|due|due on|due at|due by|deadline|target date|target completion|"
     "planned finish|finish|end date|end|finish date|by when|到期日|截止日期|截止时间|截至日期|"
     "计划完成|计划完成时间|计划完成日期|计划结束|计划结束时间|预计结束|预计完成时间|结束日期|"
     "结束时间|完成期限|期限|截止|完成时间",
     true},
    {Role::Url, QT_TRANSLATE_NOOP("TableMapping", "Link"),
     "url|link|issue url|card url|web url|links|href|html url|permalink|链接|网址|地址|超链接|"
     "链接地址",
     true},
    {Role::Detail, QT_TRANSLATE_NOOP("TableMapping", "Details text"),
     "detail|details|description|card description|task content|notes|note|body|描述|详情|说明|备注|"
     "详细信息|内容|详细描述|任务描述|需求描述|问题描述",
     true},
    {Role::Type, QT_TRANSLATE_NOOP("TableMapping", "Type"), "type", true},
    {Role::CompletedAt, QT_TRANSLATE_NOOP("TableMapping", "Completed on"),
     "completed at|completed|closed at|date completed|completed date|completed on|resolved|"
     "resolved at|accepted at|closed|完成日期|实际完成|实际完成时间|关闭时间|关闭日期|解决时间",
     true},
    {Role::Verdict, QT_TRANSLATE_NOOP("TableMapping", "Verdict"), "verdict|结论|判定|验证结果",
     true},
    {Role::Votes, QT_TRANSLATE_NOOP("TableMapping", "Votes"),
     "votes|vote|vote count|number of votes|upvotes|投票|票数|投票数|得票", true},
};

/** A heading in the form in which headings are compared. */
QString plain(const QString &heading)
{
    static const QRegularExpression custom(
        QStringLiteral("^(?:custom field|自定义字段)\\s*[(（](.*)[)）]$"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression remark(QStringLiteral("\\s*[(（][^)）]*[)）]$"));
    static const QRegularExpression humps(QStringLiteral("([a-z])([A-Z])")); // createdAt
    QString text = heading.trimmed();
    text = text.replace(humps, QStringLiteral("\\1 \\2")).toLower();
    if (const auto match = custom.match(text); match.hasMatch())
        text = match.captured(1);
    text.remove(remark);
    for (const char sign : {'_', '-', '.', ':', '*', '\n'})
        text.replace(QLatin1Char(sign), QLatin1Char(' '));
    return text.remove(QChar(u'\uff1a')).simplified();
}

/** Whether a heading names one of several columns of titles: "Level 2", "Cause 1", "二级". */
bool isPathHeading(const QString &heading)
{
    static const QRegularExpression form(QString::fromUtf8(
        "^(?:(?:level|title|cause|task|topic|subtopic|heading|why|summary|name|层级|标题|级别|原因)"
        "\\s?"
        "[1-9][0-9]?|[一二三四五六七八九]级(?:标题|原因)?|第[一二三四五六七八九]级)$"));
    return form.match(heading).hasMatch();
}

struct Known
{
    Role role;
    int rank; ///< how sure it is, 0 for the surest
};

const QHash<QString, Known> &knownHeadings()
{
    static const QHash<QString, Known> known = [] {
        QHash<QString, Known> headings;
        for (const RoleEntry &entry : entries) {
            const QStringList names =
                QString::fromUtf8(entry.headings).split(QLatin1Char('|'), Qt::SkipEmptyParts);
            for (int rank = 0; rank < names.size(); ++rank)
                headings.insert(names.at(rank), {entry.role, rank});
        }
        return headings;
    }();
    return known;
}

bool isSingle(Role role)
{
    return entries[std::size_t(role)].isSingle;
}

} // namespace

QList<Role> TableMapping::allRoles()
{
    QList<Role> roles;
    for (const RoleEntry &entry : entries)
        roles.append(entry.role);
    return roles;
}

QString TableMapping::nameOf(Role role)
{
    return tr(entries[std::size_t(role)].name);
}

QVector<Role> TableMapping::guessed(const QStringList &headings)
{
    QVector<Role> roles(headings.size(), Role::Other);
    QHash<int, int> best; ///< of the single roles, the column
    QVector<int> ranks(headings.size(), 0);
    int paths = 0;
    for (int i = 0; i < headings.size(); ++i) {
        const QString name = plain(headings.at(i));
        if (isPathHeading(name)) {
            roles[i] = Role::Path;
            ++paths;
            continue;
        }
        const auto known = knownHeadings().constFind(name);
        if (known == knownHeadings().constEnd())
            continue;
        const int role = int(known->role);
        ranks[i] = known->rank;
        if (!isSingle(known->role)) {
            roles[i] = known->role;
        } else if (!best.contains(role) || known->rank < ranks.at(best.value(role))) {
            if (best.contains(role))
                roles[best.value(role)] = Role::Other;
            best.insert(role, i);
            roles[i] = known->role;
        }
    }
    // One such column is none of several, and beside a title they are what they are.
    if (paths == 1 || best.contains(int(Role::Title))) {
        for (Role &role : roles)
            role = role == Role::Path ? Role::Other : role;
    }
    return roles;
}

bool TableMapping::hasTitles(const QVector<Role> &roles)
{
    return roles.contains(Role::Title) || roles.contains(Role::Path);
}
