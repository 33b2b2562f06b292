// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** The documents that were open when the program ended, which it opens again if the user likes. */
namespace LastDocuments {

/** Whether the user wants them opened; true until they say otherwise. */
bool areWanted();
void setWanted(bool wanted);

/** Remembers the files of the open documents, and that of the one that is shown. */
void remember(const QStringList &paths, const QString &shown);

/** The files that are still there; none when they are not wanted. */
QStringList files();

/** The file of the document that was shown, empty when it had none. */
QString shownFile();

} // namespace LastDocuments
