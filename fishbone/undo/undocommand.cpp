// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/undocommand.h>

UndoCommand::UndoCommand(const QString &text, QObject *parent)
    : UndoCommand([text] { return text; }, parent)
{
}

UndoCommand::UndoCommand(const Name &name, QObject *parent)
    : QObject(parent)
    , m_name(name)
{
}

UndoCommand::~UndoCommand() = default;

void UndoCommand::setText(const QString &text)
{
    m_name = [text] { return text; };
}
