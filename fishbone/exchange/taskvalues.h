// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/subjectmarks.h>

#include <QString>

#include <optional>

/** Values as task lists of other programs spell them, in the languages of TaskWords. */
namespace TaskValues {

/** The number of a status (TaskStatus): the number itself or one of many words for it. */
std::optional<int> status(const QString &text);

/** The number of the status of a story, which is delivered to be accepted, and rejected to be done
 * again. */
std::optional<int> storyState(const QString &text);

/**
 * A priority, 1 for the highest: the number itself, alone or before a word ("p2 - High"), or a
 * word, -1 for words such as "none". The words of a scale of five are 1 to 5.
 */
std::optional<int> priority(const QString &text);

/** A progress in whole percent: "40", "40 %" or a fraction such as "0.4". */
std::optional<int> progress(const QString &text);

/** What has been found out about a cause; Verdict::None for what says nothing of that. */
Verdict verdict(const QString &text);

/** Which number of a date such as 3/4/2024 is the month. */
enum class NumberOrder { MonthFirst, DayFirst };

/**
 * The milliseconds since 1970 of a date in one of the usual forms, which may have a time and a zone
 * behind it. Without a zone it is local time, without a time the day's beginning. @p order tells
 * what dates of numbers between slashes mean.
 */
std::optional<qint64> date(const QString &text, NumberOrder order = NumberOrder::MonthFirst);

/** The two numbers that a date such as 3/4/2024 begins with; nothing for other forms. */
std::optional<std::pair<int, int>> slashedNumbers(const QString &text);

} // namespace TaskValues
