// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

/** The numbers that documents have for statuses, for folders that know nothing of TaskStatus. */
namespace TaskStatuses {

constexpr int unknown = 0;
constexpr int cancelled = 1;
constexpr int finished = 2; ///< in time
constexpr int finishedLate = 3;
constexpr int postponed = 4;
constexpr int running = 5;
constexpr int waiting = 6;  ///< to begin
constexpr int approval = 7; ///< waiting for it

/** Whether nobody has to do anything any more about a task of that status. */
constexpr bool isEnded(int status)
{
    return status == cancelled || status == finished || status == finishedLate;
}

} // namespace TaskStatuses
