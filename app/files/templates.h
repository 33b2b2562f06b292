// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <memory>

class TreeItem;

/** What new diagrams may begin with: the templates of the program, and those that users have made
 * of diagrams of their own. */
namespace Templates {

struct Template
{
    QString name;       ///< for people
    QString path;       ///< of its file, which may be a resource
    bool isOwn = false; ///< whether a user has made it
};

/** The templates of the program in the language of the moment, and behind them the user's own ones
 * by their names. */
QList<Template> all();

/** The diagram of @p chosen; null when its file cannot be read. */
std::unique_ptr<TreeItem> diagram(const Template &chosen);

/** The folder of the user's own templates, which need not be there. */
QString folder();
/** The file of the user's own template of that name. */
QString pathOf(const QString &name);

} // namespace Templates
