// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

class QLabel;
class TaskSync;

/** Tells of the first conflict that waits, and asks whose change is to stay. Hidden without one. */
class ConflictBar : public QFrame
{
    Q_OBJECT

public:
    explicit ConflictBar(TaskSync &sync, QWidget *parent = nullptr);

    /** What it says; empty without a conflict. */
    QString text() const;
    /** Settles the conflict that is told. */
    void settle(bool keepsMine);

private:
    void refresh();

    TaskSync &m_sync;
    QLabel *m_label; // a child
};
