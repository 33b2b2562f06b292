// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/subjectfilter.h>

#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/treeitem.h>

#include <tuple>

bool SubjectFilter::accepts(const TreeItem &subject, const QDate &today) const
{
    const auto contains = [this](const QString &said) {
        return said.contains(text, Qt::CaseInsensitive);
    };
    return (text.isEmpty() || contains(subject.title()) || contains(subject.showid()) ||
            contains(subject.detail())) &&
           (!status || subject.status() == *status) &&
           (!verdict || SubjectMarks::verdict(subject) == *verdict) &&
           (!person || subject.managerName() == *person) &&
           (!isOverdue || MeetingReport::isOverdue(subject, today)) &&
           SubjectMarks::votes(subject) >= votes;
}

bool SubjectFilter::operator==(const SubjectFilter &other) const
{
    return std::tie(text, status, verdict, person, isOverdue, votes) ==
           std::tie(other.text, other.status, other.verdict, other.person, other.isOverdue,
                    other.votes);
}
