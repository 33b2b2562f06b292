// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class TreeItem;

/** Who is named in a document: to be offered where somebody is to be named. */
class People
{
public:
    /** Those who are responsible for a subject below @p root, which may be null, follow it or have
     * made it. Linear, without recursion. */
    static People in(const TreeItem *root);

    /** Their names, each once, sorted as the language of the user sorts them. */
    QStringList names() const;
    /** The name as the document has it, which @p typed may write with other capitals; @p typed
     * itself for somebody new. */
    QString spelled(const QString &typed) const;
    /** The id that goes with @p name; empty when none is known. */
    QString idOf(const QString &name) const { return m_ids.value(name); }

    /** Makes the one whom @p typed names responsible for @p subject; nobody when it is empty. */
    void makeResponsible(TreeItem &subject, const QString &typed) const;

private:
    void add(const QString &name, const QString &id = QString());

    QMap<QString, QString> m_ids; ///< by the names
};
