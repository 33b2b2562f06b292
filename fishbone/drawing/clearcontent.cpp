// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcontent.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

#include <QFont>

#include <map>
#include <utility>

namespace {
/** How many subjects are below @p item. */
int countBelow(const TreeItem *item)
{
    int count = -1; // without itself
    std::vector<const TreeItem *> open{item};
    while (!open.empty()) {
        const TreeItem *const next = open.back();
        open.pop_back();
        ++count;
        open.insert(open.end(), next->childItems().cbegin(), next->childItems().cend());
    }
    return count;
}
} // namespace

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

void ClearContent::add(const TreeItem *item, int parent, ClearPictureContent &content)
{
    const TaskStatusInfo info(TaskStatus(item->status()), item->progress());
    ClearSubject subject;
    subject.parent = parent;
    subject.title = item->title();
    subject.hasLink = !item->url().isEmpty();
    subject.hasStatus = !info.iconPath().isEmpty();
    ClearSubjectLook look;
    if (subject.hasStatus)
        look.icon = info.iconPath();
    if (const SpearStyle *const style = item->spearStyle()) {
        if (const QFont *const font = style->textFont(SpearStyle::ssNormal))
            subject.font = ClearFont::onScreen(*font);
        look.ink = style->textColor(SpearStyle::ssNormal);
        look.background = style->textBkColor(SpearStyle::ssNormal);
    }
    PictureSubject meaning;
    meaning.id = item->uuid();
    meaning.title = item->title();
    meaning.detail = item->detail();
    meaning.link = item->url();
    meaning.state = meaningOf(item->status());
    meaning.parent = parent;
    meaning.level = parent < 0 ? 0 : content.meanings[std::size_t(parent)].level + 1;
    content.subjects.push_back(subject);
    content.looks.push_back(look);
    content.meanings.push_back(meaning);
}

ClearPictureContent ClearContent::of(const TreeItem *head, int levels)
{
    ClearPictureContent content;
    content.linkIcon = QStringLiteral(":/fishboneDiagram/link.png");
    std::map<int, QString> used; // the first icon of each status
    std::vector<std::pair<const TreeItem *, int>> open{{head, -1}};
    while (!open.empty()) {
        const auto [item, parent] = open.back();
        open.pop_back();
        const int index = int(content.subjects.size());
        add(item, parent, content);
        if (index > 0 && content.subjects.back().hasStatus)
            used.emplace(item->status(), content.looks.back().icon);
        const QList<TreeItem *> &children = item->childItems();
        if (levels >= 0 && content.meanings.back().level > levels) {
            content.subjects.back().hidden = countBelow(item);
            continue;
        }
        for (auto child = children.crbegin(); child != children.crend(); ++child)
            open.emplace_back(*child, index);
    }
    for (const auto &[status, icon] : used) {
        content.legendIcons.push_back(icon);
        content.legendTexts.push_back(meaningOf(status));
    }
    return content;
}
