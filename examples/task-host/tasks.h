// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/** What the host knows about tasks beside the diagram: a stand-in for a data base or a server. */
class Tasks
{
public:
    /** Makes a task below another one and returns its identifier. */
    QString create(const QString &title, const QString &parentId);
    /** Gives tasks another parent. */
    void setParent(const QStringList &ids, const QString &parentId);

    /** The title of a task that was made here, otherwise empty. */
    QString title(const QString &id) const { return m_titles.value(id); }
    /** The identifier of the parent that was stored last, otherwise empty. */
    QString parentOf(const QString &id) const { return m_parents.value(id); }
    /** How many tasks were made. */
    int count() const { return int(m_titles.size()); }

private:
    QHash<QString, QString> m_titles;
    QHash<QString, QString> m_parents;
};
