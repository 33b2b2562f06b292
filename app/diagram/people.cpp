// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/people.h>

#include <fishbone/model/treeitem.h>

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
