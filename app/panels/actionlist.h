// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/panels/subjectlist.h>

/**
 * Who is to do what until when. By person or status, or in one list; sorted by the column whose
 * heading is clicked, at first as in a report. What is overdue is marked. A double click or F2
 * edits a cell, in one step of the history.
 */
class ActionList : public SubjectList
{
    Q_OBJECT

public:
    /** The columns. */
    enum Column : int { Title, Person, End, Status };
    /** What the rows are grouped by. */
    enum class Groups : int { None, Person, Status };

    explicit ActionList(QWidget *parent = nullptr);

    /** Groups the rows by @p groups from now on. */
    void setGroups(Groups groups);

protected:
    QVector<Entry> entries(const MeetingReport &report) const override;

private:
    void sort(QVector<Entry> &entries) const;
    void change(const QModelIndex &cell, const QVariant &value);

    Groups m_groups = Groups::Person;
};
