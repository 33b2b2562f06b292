// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/tablemapping.h>

#include <fishbone/exchange/taskwords.h>

#include <QHash>
#include <QRegularExpression>

namespace {

using Role = TableMapping::Role;

struct RoleEntry
{
    Role role;
    const char *name; ///< for TableMapping::tr()
    bool isSingle;    ///< only one column has that role
};

const RoleEntry entries[] = {
    {Role::Other, QT_TRANSLATE_NOOP("TableMapping", "Details"), false},
    {Role::Title, QT_TRANSLATE_NOOP("TableMapping", "Title"), true},
    {Role::Path, QT_TRANSLATE_NOOP("TableMapping", "Title of one level"), false},
    {Role::Id, QT_TRANSLATE_NOOP("TableMapping", "Id"), false},
    {Role::Uuid, QT_TRANSLATE_NOOP("TableMapping", "Uuid"), true},
    {Role::ShortId, QT_TRANSLATE_NOOP("TableMapping", "Short id"), true},
    {Role::Parent, QT_TRANSLATE_NOOP("TableMapping", "Parent"), false},
    {Role::Level, QT_TRANSLATE_NOOP("TableMapping", "Level"), true},
    {Role::Outline, QT_TRANSLATE_NOOP("TableMapping", "Outline number"), true},
    {Role::Status, QT_TRANSLATE_NOOP("TableMapping", "Status"), true},
    {Role::Progress, QT_TRANSLATE_NOOP("TableMapping", "Progress"), true},
    {Role::Priority, QT_TRANSLATE_NOOP("TableMapping", "Priority"), true},
    {Role::Manager, QT_TRANSLATE_NOOP("TableMapping", "Manager"), true},
    {Role::ManagerId, QT_TRANSLATE_NOOP("TableMapping", "Manager's id"), true},
    {Role::Creator, QT_TRANSLATE_NOOP("TableMapping", "Creator"), true},
    {Role::CreatorId, QT_TRANSLATE_NOOP("TableMapping", "Creator's id"), true},
    {Role::Followers, QT_TRANSLATE_NOOP("TableMapping", "Followers"), false},
    {Role::Created, QT_TRANSLATE_NOOP("TableMapping", "Created"), true},
    {Role::PlannedEnd, QT_TRANSLATE_NOOP("TableMapping", "Planned end"), true},
    {Role::Url, QT_TRANSLATE_NOOP("TableMapping", "Link"), true},
    {Role::Detail, QT_TRANSLATE_NOOP("TableMapping", "Details text"), true},
    {Role::Type, QT_TRANSLATE_NOOP("TableMapping", "Type"), true},
    {Role::CompletedAt, QT_TRANSLATE_NOOP("TableMapping", "Completed on"), true},
    {Role::Verdict, QT_TRANSLATE_NOOP("TableMapping", "Verdict"), true},
    {Role::Votes, QT_TRANSLATE_NOOP("TableMapping", "Votes"), true},
};

/** The heading in brackets behind what trackers call the fields that their users add, each in its
 * language: "Custom field (Epic Link)". */
QString ownField(const QString &heading)
{
    static const QRegularExpression form(
        QString::fromUtf8("^(?:custom field|自定义字段|自訂欄位|カスタム ?フィールド|"
                          "사용자 ?정의 필드|benutzerdefiniertes feld|champs? personnalisés?|"
                          "campo personalizado|campo personalizzato|pole niestandardowe|"
                          "настраиваемое поле|пользовательское поле|حقل مخصص)\\s*\\((.*)\\)$"));
    const auto match = form.match(heading);
    return match.hasMatch() ? match.captured(1) : heading;
}

/** A heading in the form in which headings are compared. */
QString plain(const QString &heading)
{
    static const QRegularExpression remark(QStringLiteral("\\s*\\([^)]*\\)$"));
    static const QRegularExpression humps(QStringLiteral("([a-z])([A-Z])")); // createdAt
    QString text = heading.trimmed();
    text = ownField(TaskWords::compared(text.replace(humps, QStringLiteral("\\1 \\2"))));
    text.remove(remark);
    for (const char sign : {'_', '-', '.', ':', '*', '\n'})
        text.replace(QLatin1Char(sign), QLatin1Char(' '));
    return text.simplified();
}

struct Known
{
    Role role;
    int rank; ///< how sure it is, 0 for the surest
};

using KnownHeadings = QHash<QString, Known>;

/** The words of all languages for headings: of columns of one level, or of the others. */
KnownHeadings headingsOf(bool isPath)
{
    KnownHeadings known;
    for (const TaskWords::Entry &entry : TaskWords::headings()) {
        const auto role = Role(entry.meaning);
        if ((role == Role::Path) != isPath)
            continue;
        const QStringList words = TaskWords::listed(entry);
        for (int rank = 0; rank < words.size(); ++rank) {
            const QString word = plain(words.at(rank));
            if (!known.contains(word) || known.value(word).rank > rank)
                known.insert(word, {role, rank});
        }
    }
    return known;
}

/** Whether a heading names one of several columns of titles: "Level 2", "Cause 1", "二级". */
bool isPathHeading(const QString &heading)
{
    static const QRegularExpression numbered(QStringLiteral("^(.+?)\\s?[1-9][0-9]?$"));
    static const QRegularExpression chinese(QString::fromUtf8(
        "^(?:[一二三四五六七八九]级(?:标题|原因)?|第[一二三四五六七八九][级級層階]層?)$"));
    static const KnownHeadings words = headingsOf(true);
    const auto match = numbered.match(heading);
    return match.hasMatch() ? words.contains(match.captured(1)) : chinese.match(heading).hasMatch();
}

const KnownHeadings &knownHeadings()
{
    static const KnownHeadings known = headingsOf(false);
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
