// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QListWidget>

class DiagramSession;

/**
 * The undo history as a list: the state before every change on top, then one row for each command.
 * The current row is the last command that counts; choosing another one goes there.
 */
class HistoryPanel : public QListWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(DiagramSession *session, QWidget *parent = nullptr);

private:
    void refresh();

    DiagramSession *m_session;
};
