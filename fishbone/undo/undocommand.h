// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

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
    /** A name in the language of the moment. */
    using Name = std::function<QString()>;

    /** Makes a command named @p text. A command for a stack has no parent. */
    explicit UndoCommand(const QString &text, QObject *parent = nullptr);
    /** Makes a command whose name follows the language: @p name is asked for it each time. */
    explicit UndoCommand(const Name &name, QObject *parent = nullptr);
    ~UndoCommand() override;

    /** Reverts the effect of redo(). */
    virtual void undo() = 0;

    /** Applies the change, for the first time or again. */
    virtual void redo() = 0;

    /** Returns the name that a user reads. */
    QString text() const { return m_name ? m_name() : QString(); }
    /** Returns what makes the name, for a command that takes it over. */
    Name name() const { return m_name; }

    /** Replaces the name that a user reads. */
    void setText(const QString &text);
    /** Replaces the name that a user reads by one that follows the language. */
    void setText(const Name &name) { m_name = name; }

    /** Returns the titles of the subjects that the command is about, as they were or have become
     * by it; empty when it is about none. */
    QStringList subjectTitles() const { return m_subjectTitles; }
    /** Replaces subjectTitles(), which are there for whoever lists steps. */
    void setSubjectTitles(const QStringList &titles) { m_subjectTitles = titles; }
    /** Adds @p title to subjectTitles(). */
    void addSubjectTitle(const QString &title) { m_subjectTitles.append(title); }

private:
    Name m_name;
    QStringList m_subjectTitles;
};
