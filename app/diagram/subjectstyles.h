// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndexList>

class DiagramSession;

/**
 * The own styles of subjects, each edit of them one step of the undo history.
 *
 * A style whose SpearStyle::inheritanceParent() is set is that of the parent, or that of all
 * subjects where the parent has none: it is taken over when the mark is set, and again with each
 * edit here that changes the style of the parent, however many subjects hand it on.
 */
namespace SubjectStyles {

/** Lets the user edit the own style of the first of the subjects at @p indexes, and gives it to all
 * of them. */
void edit(DiagramSession &session, const QModelIndexList &indexes);
/** Removes the own styles of the subjects at @p indexes. */
void remove(DiagramSession &session, const QModelIndexList &indexes);

/** Takes the own styles and colours off all subjects of the shown document, so that one palette and
 * one style hold for all. Tells of how many; 0 without a step when none has any. */
int removeAll(DiagramSession &session);

} // namespace SubjectStyles
