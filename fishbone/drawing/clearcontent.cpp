// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcontent.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

#include <QFont>
#include <QStringList>

#include <utility>

QString ClearContent::meaningOf(int status)
{
    switch (status) {
    case tsCancel:
        return tr("cancelled");
    case tsFinish:
        return tr("finished");
    case tsFinishDelay:
        return tr("finished late");
    case tsPostpone:
        return tr("postponed");
    case tsRunning:
        return tr("under way");
    case tsWaitting:
        return tr("waiting");
    case tsWaittingAgree:
        return tr("waiting for approval");
    default:
        return QString();
    }
}

QString ClearContent::meaningOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Suspected:
        return tr("suspected");
    case Verdict::Checking:
        return tr("being checked");
    case Verdict::Confirmed:
        return tr("confirmed");
    case Verdict::RuledOut:
        return tr("ruled out");
    case Verdict::RootCause:
        return tr("root cause");
    case Verdict::None:
        break;
    }
    return QString();
}

QString ClearContent::textOfVotes(int votes)
{
    return votes > 0 ? tr("%n vote(s)", nullptr, votes) : QString();
}

QString ClearContent::shownIn(const TreeItem &subject)
{
    QStringList all{meaningOf(subject.status()), meaningOf(SubjectMarks::verdict(subject)),
                    textOfVotes(SubjectMarks::votes(subject))};
    all.removeAll(QString());
    return all.join(QStringLiteral(", "));
}

std::optional<ClearFont> ClearContent::ownFont(const TreeItem &subject)
{
    const SpearStyle *const style = subject.spearStyle();
    const QFont *const font = style ? style->textFont(SpearStyle::ssNormal) : nullptr;
    return font ? std::optional(ClearFont::onScreen(*font)) : std::nullopt;
}

/** The status that @p icon tells: what is under way and all done shows that it waits for approval.
 */
int ClearSymbols::statusOf(const QString &icon, int status)
{
    static const QString approval = TaskStatusInfo(tsWaittingAgree, 0).iconPath();
    return icon == approval ? int(tsWaittingAgree) : status;
}

void ClearSymbols::add(const TreeItem &subject, const ClearSubjectLook &look, int level)
{
    if (level > 0 && !look.icon.isEmpty())
        m_statuses.emplace(statusOf(look.icon, subject.status()), look.icon);
    if (look.verdict != Verdict::None)
        m_verdicts.insert(int(look.verdict));
    m_hasVotes = m_hasVotes || look.votes > 0;
    // The box of a category and the head say themselves what their colours mean.
    if (level > 1 && look.colour.isValid())
        m_colours.emplace(look.colour.rgb(), subject.title());
}

std::vector<ClearMeaning> ClearSymbols::all() const
{
    std::vector<ClearMeaning> all;
    for (const auto &[status, icon] : m_statuses)
        all.push_back({icon, Verdict::None, QColor(), ClearContent::meaningOf(status), false});
    for (const int verdict : m_verdicts)
        all.push_back({QString(), Verdict(verdict), QColor(),
                       ClearContent::meaningOf(Verdict(verdict)), false});
    if (m_hasVotes)
        all.push_back({QString(), Verdict::None, QColor(), ClearContent::tr("votes"), true});
    for (const auto &[colour, title] : m_colours)
        all.push_back({QString(), Verdict::None, QColor(colour), title.simplified(), false});
    return all;
}

void ClearContent::add(const TreeItem *item, int parent, ClearPictureContent &content)
{
    ClearSubjectLook look = ClearSubjectLook::of(*item);
    look.icon = ClearSubjectLook::iconOf(*item);
    ClearSubject subject;
    subject.parent = parent;
    subject.title = item->title();
    subject.hasLink = !item->url().isEmpty();
    subject.hasStatus = !look.icon.isEmpty();
    subject.isFilled = look.fillsTitle(parent <= 0);
    subject.votes = look.votes;
    subject.font = ownFont(*item);
    const int level = parent < 0 ? 0 : content.meanings[std::size_t(parent)].level + 1;
    content.subjects.push_back(subject);
    content.looks.push_back(look);
    content.meanings.push_back(about(item, parent, level));
}

PictureSubject ClearContent::about(const TreeItem *item, int parent, int level)
{
    PictureSubject subject;
    subject.parent = parent;
    subject.level = level;
    if (!item)
        return subject;
    subject.id = item->uuid();
    subject.title = item->title();
    subject.detail = item->detail();
    subject.link = item->url();
    subject.state = shownIn(*item);
    return subject;
}

ClearPictureContent ClearContent::of(const TreeItem *head, int levels)
{
    return of(head,
              [levels](const TreeItem &, int level) { return levels < 0 || level <= levels; });
}

ClearPictureContent ClearContent::of(const TreeItem *head, const Shows &shows)
{
    ClearPictureContent content;
    content.linkIcon = QStringLiteral(":/fishboneDiagram/link.png");
    ClearSymbols symbols;
    std::vector<std::pair<const TreeItem *, int>> open{{head, -1}};
    while (!open.empty()) {
        const auto [item, parent] = open.back();
        open.pop_back();
        const int index = int(content.subjects.size());
        add(item, parent, content);
        const int level = content.meanings.back().level;
        symbols.add(*item, content.looks.back(), level);
        const QList<TreeItem *> &children = item->childItems();
        if (index > 0 && !shows(*item, level)) {
            content.subjects.back().hidden = countSubjects(*item) - 1;
            continue;
        }
        for (auto child = children.crbegin(); child != children.crend(); ++child)
            open.emplace_back(*child, index);
    }
    content.symbols = symbols.all();
    return content;
}
