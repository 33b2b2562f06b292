// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTextStream>
#include <QTimer>

#include <random>

class TaskDesk;
class TreeItem;

/**
 * Works at a desk as a busy user would, so that several hosts can be tried out on one data base.
 *
 * Reads commands, a line each, and answers on the standard output:
 *
 * - "edit COUNT SEED" makes that many random edits, then says "done";
 * - "tree" tells all tasks in order, a line each with level, uuid and fields, then "end REVISION",
 *   once everything is stored and fetched;
 * - "here" tells them as this host has them, stored or not;
 * - "quit" ends the program.
 *
 * For each revision that the desk has stored it says "task UUID TITLE" for each task of it and
 * "stored REVISION".
 */
class Rehearsal : public QObject
{
    Q_OBJECT

public:
    explicit Rehearsal(TaskDesk &desk, QObject *parent = nullptr);

    /** Carries out one command. */
    void command(const QString &line);
    /** Makes one random edit through the editor of the first window. */
    void edit();

private:
    QList<TreeItem *> causes() const;
    int random(int below);
    void tellStored(qint64 revision);
    void tellTree();
    void tellTasks();
    void nextEdit();

    TaskDesk &m_desk;
    QTextStream m_out;
    QTimer m_timer;
    std::mt19937 m_random;
    int m_left = 0;
    int m_made = 0;
    bool m_isTreeAsked = false;
};
