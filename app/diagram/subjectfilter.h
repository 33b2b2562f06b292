// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/subjectmarks.h>

#include <QString>

#include <optional>

class QDate;
class TreeItem;

/** Which subjects somebody wants to see. What is not set accepts all. */
struct SubjectFilter
{
    QString text;                   ///< in title, number or details, whatever the capitals
    std::optional<int> status;      ///< -1 for those without one
    std::optional<Verdict> verdict; ///< Verdict::None for those without one
    std::optional<QString> person;  ///< who is responsible; empty for nobody
    bool isOverdue = false;         ///< only what should be done by now
    int votes = 0;                  ///< at the least

    /** Whether nothing is set. */
    bool isEmpty() const { return *this == SubjectFilter(); }
    /** Whether @p subject is wanted on the day @p today. */
    bool accepts(const TreeItem &subject, const QDate &today) const;

    bool operator==(const SubjectFilter &other) const;
    bool operator!=(const SubjectFilter &other) const { return !(*this == other); }
};
