// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QTreeWidget>

#include <vector>

class DiagramSession;
class QKeyEvent;

/**
 * The undo history as a list: the state before every change on top, then one row for each command.
 * The current row is the last command that counts; choosing another one goes there.
 *
 * Steps of one kind that follow each other are folded into a row that says how many they are and
 * goes to the last of them; unfolded it shows each.
 */
class HistoryPanel : public QTreeWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(DiagramSession *session, QWidget *parent = nullptr);

    /** How many steps of one kind in a row are folded, at least. */
    static constexpr int shortestRun = 3;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /** Commands that stand together, by the index of the first one. */
    struct Run
    {
        int first;
        int length;
        bool operator==(const Run &other) const
        {
            return first == other.first && length == other.length;
        }
    };

    static std::vector<Run> runsOf(const QStringList &names);
    void refresh();
    void countSteps();
    void keepFolding(const QTreeWidgetItem *row, bool isUnfolded);
    bool isUnfolded(const Run &run) const;
    void build(const std::vector<Run> &runs);
    void write(QTreeWidgetItem *row, int step, const QString &text);
    void showRun(QTreeWidgetItem *row, const Run &run, const QString &name);
    void showCurrent();
    void goTo(const QTreeWidgetItem *row);
    QTreeWidgetItem *rowOf(int step) const;

    DiagramSession *m_session;
    std::vector<Run> m_runs; ///< as they are shown
    int m_current = -1;      ///< the command that counts last
    int m_gone = 0;          ///< how many commands have fallen off at the bound
    QSet<int> m_unfolded;    ///< the steps of unfolded runs, counted from the very first one
};
