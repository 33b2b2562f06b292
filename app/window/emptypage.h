// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class ActionSet;
class QLabel;
class QListWidget;
class RecentFiles;

/** What a window without documents shows: how to get one. */
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    EmptyPage(const ActionSet &actions, RecentFiles *recent, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void listRecent();

    RecentFiles *m_recent;
    QLabel *m_label;
    QListWidget *m_list;
};
