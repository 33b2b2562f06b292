// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class DiagramSession;

/** The documents that were open when the program ended, which it opens again if the user likes. */
namespace LastDocuments {

/** Whether the user wants them opened; true until they say otherwise. */
bool areWanted();
void setWanted(bool wanted);

/** Remembers the files of the open documents. */
void remember(const DiagramSession &session);

/** The files that are still there, the one that was shown last; none when they are not wanted. */
QStringList files();

} // namespace LastDocuments
