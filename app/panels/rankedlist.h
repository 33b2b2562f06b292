// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/panels/subjectlist.h>

/** The causes in the order of what was found out about them and of their votes, which have bars. */
class RankedList : public SubjectList
{
    Q_OBJECT

public:
    /** The columns. */
    enum Column : int { Votes, Title, VerdictColumn, Place };

    explicit RankedList(QWidget *parent = nullptr);

protected:
    QVector<Entry> entries(const MeetingReport &report) const override;

private:
    int roomForVerdicts() const;
};
