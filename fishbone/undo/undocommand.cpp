// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undocommand.h>

UndoCommand::UndoCommand(const QString &text, QObject *parent)
    : QObject(parent)
    , m_text(text)
{
}

UndoCommand::~UndoCommand() = default;
