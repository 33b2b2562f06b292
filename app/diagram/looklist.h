// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>

#include <QLatin1String>

#include <vector>

class QString;

/** The looks that the program offers, in the order in which it does; the first is the usual one. */
namespace LookList {

struct Entry
{
    DiagramLook::Kind kind;
    QLatin1String name;   ///< in documents and on the command line
    const char *action;   ///< the name of its action
    const char *menuText; ///< of that, a text of LookCommands
    const char *title;    ///< a text of PictureLookFields
};

const std::vector<Entry> &all();
/** The look of that name; null when there is none. */
const Entry *find(const QString &name);
/** The name of a look. */
QLatin1String nameOf(DiagramLook::Kind kind);

} // namespace LookList
