// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/undo/undocommand.h>

#include <QColor>
#include <QKeySequence>
#include <QList>

#include <functional>
#include <vector>

class TreeItem;

/**
 * An entry of the menu of marks: a value that subjects are given, under the name of its action and
 * the untranslated text of the entry. The context of all texts is MarkCommands.
 */
struct MarkEntry
{
    const char *action;
    const char *text;
    QList<QKeySequence> keys;
    QColor square; ///< what the entry shows for an icon; invalid for none
    /** Gives a subject the value. */
    std::function<void(TreeItem &subject)> change;
    /** Whether a subject has it. */
    std::function<bool(const TreeItem &subject)> test;
};

/** The entries for each kind of mark, those that take it away included, and what a step is called
 * that gives it. */
namespace MarkEntries {

std::vector<MarkEntry> verdicts();
std::vector<MarkEntry> statuses();
std::vector<MarkEntry> priorities();
std::vector<MarkEntry> colours();

/** The name of a step, from its untranslated text. */
UndoCommand::Name stepName(const char *text);

} // namespace MarkEntries
