// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QString>

class CommandRunner;
class EditorCalls;
class QPersistentModelIndex;
class QWidget;
class ShownDrawing;
class ShownRoot;
class ShownSubject;
class UndoCommand;

/** The link of the selected subject. Nothing is done without one. */
class SubjectLinks
{
public:
    /** What links are edited with; all must live as long. */
    struct Stage
    {
        QWidget &window; ///< over which the user is asked
        const ShownSubject &shown;
        ShownDrawing &drawing;
        ShownRoot &root;
        EditorCalls &calls;
        CommandRunner &runner;
    };

    explicit SubjectLinks(const Stage &stage);

    /** The display text of column 2 in the subject's row. */
    QString url() const;
    /** Asks for a URL and links the subject to it. */
    void ask();
    /** Removes the link. */
    void remove();
    /** Opens url(), unless it is empty. */
    void open() const;

private:
    void change(std::unique_ptr<UndoCommand> command, const QPersistentModelIndex &index);

    Stage m_stage;
};
