// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/people.h>

#include <fishbone/model/treeitem.h>

#include <algorithm>
#include <vector>

People People::in(const TreeItem *root)
{
    People people;
    std::vector<const TreeItem *> waiting;
    if (root)
        waiting.push_back(root);
    while (!waiting.empty()) {
        const TreeItem *const subject = waiting.back();
        waiting.pop_back();
        people.add(subject->managerName(), subject->managerId());
        people.add(subject->creatorName(), subject->creatorId());
        const QStringList followers = subject->followers();
        for (const QString &follower : followers)
            people.add(follower);
        const QList<TreeItem *> &children = subject->childItems();
        waiting.insert(waiting.end(), children.cbegin(), children.cend());
    }
    return people;
}

void People::add(const QString &name, const QString &id)
{
    if (name.isEmpty())
        return;
    QString &known = m_ids[name];
    if (known.isEmpty())
        known = id;
}

QString People::spelled(const QString &typed) const
{
    if (m_ids.contains(typed))
        return typed;
    const QStringList known = names();
    const auto same = std::find_if(known.cbegin(), known.cend(), [&typed](const QString &name) {
        return name.compare(typed, Qt::CaseInsensitive) == 0;
    });
    return same != known.cend() ? *same : typed;
}

void People::makeResponsible(TreeItem &subject, const QString &typed) const
{
    const QString name = spelled(typed.trimmed());
    if (subject.managerName() == name)
        return; // whose id may be another than the one that is known of that name
    subject.setManagerName(name);
    subject.setManagerId(idOf(name));
}
