// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class TreeItem;

/** What the speaker of a slide has before the eyes. */
namespace SlideNotes {

/** The paragraphs of the notes: the outline of @p head, and below it what is to be done by whom. */
QByteArray paragraphs(const TreeItem &head);

} // namespace SlideNotes
