// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/people.h>

#include <fishbone/base/collation.h>
#include <fishbone/base/preorder.h>
#include <fishbone/model/treeitem.h>

#include <algorithm>

People People::in(const TreeItem *root)
{
    People people;
    // Backwards: of people of one name the id of the one who comes last among siblings counts.
    const auto childrenOf = [](const TreeItem &subject) {
        QList<TreeItem *> children = subject.children();
        std::reverse(children.begin(), children.end());
        return children;
    };
    visitPreOrder(root, childrenOf, [&people](const TreeItem *subject) {
        people.add(subject->managerName(), subject->managerId());
        people.add(subject->creatorName(), subject->creatorId());
        const QStringList &followers = subject->followers();
        for (const QString &follower : followers)
            people.add(follower);
        return true;
    });
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

QStringList People::names() const
{
    return Collation::sorted(m_ids.keys());
}

QString People::spelled(const QString &typed) const
{
    if (m_ids.contains(typed))
        return typed;
    const QStringList known = m_ids.keys();
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
