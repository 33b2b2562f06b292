// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QObject>
#include <QString>

/**
 * A change that can be taken back.
 *
 * An UndoStack owns the commands that are pushed on it and calls redo() and undo() alternately,
 * beginning with redo(): a command may rely on that, and keep in one what the other needs. The edit
 * happens in redo(), not in the constructor.
 */
class FISHBONE_EXPORT UndoCommand : public QObject
{
    Q_OBJECT

public:
    /** Makes a command named @p text. A command for a stack has no parent. */
    explicit UndoCommand(const QString &text, QObject *parent = nullptr);
    ~UndoCommand() override;

    /** Reverts the effect of redo(). */
    virtual void undo() = 0;

    /** Applies the change, for the first time or again. */
    virtual void redo() = 0;

    /** Returns the name that a user reads. */
    QString text() const { return m_text; }

    /** Replaces the name that a user reads. */
    void setText(const QString &text) { m_text = text; }

private:
    QString m_text;
};
