// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class FishInfo;

/**
 * Where the editor's autosave goes: into the user's data folder, never over a document's own file,
 * so that changes can still be thrown away. What is found there for a file that is opened was left
 * by a run that did not end well.
 */
namespace Autosave {

/** The folder of all autosaves; exists after the first redirect(). */
QString folder();

/** The autosave of the document in the file @p path. */
QString fileFor(const QString &path);

/** Whether @p path is an autosave that holds another diagram than @p document. */
bool differs(const QString &path, const FishInfo *document);

/** Sends the autosave of @p document to its place, which depends on its name. */
void redirect(FishInfo *document);

/** Removes the autosave of @p document, which was saved or closed. */
void discard(FishInfo *document);

} // namespace Autosave
