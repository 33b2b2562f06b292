// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QString>

#include <fishbone/editor/editingstage.h>

class QPersistentModelIndex;
class QWidget;
class UndoCommand;

/** The link of the selected subject. Nothing is done without one. */
class SubjectLinks
{
public:
    /** On @p stage; the user is asked over @p window, which must live as long. */
    SubjectLinks(const EditingStage &stage, QWidget &window);

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

    EditingStage m_stage;
    QWidget &m_window;
};
