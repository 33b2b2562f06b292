// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tasks.h>

#include <QUuid>

QString Tasks::create(const QString &title, const QString &parentId)
{
    const QString id = QUuid::createUuid().toString();
    m_titles.insert(id, title);
    m_parents.insert(id, parentId);
    return id;
}

void Tasks::setParent(const QStringList &ids, const QString &parentId)
{
    for (const QString &id : ids)
        m_parents.insert(id, parentId);
}
