// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <map>

/** Runs functions in processes of their own, forked from this one, so many at a time. */
class ForkedRuns
{
public:
    /** What came of one: nothing printed and an end by itself is well. */
    struct Outcome
    {
        bool isWell = false;
        QByteArray printed; ///< the last of it tells why the process ended, when not by itself
    };
    using Report = std::function<void(const Outcome &)>;

    explicit ForkedRuns(int atOnce)
        : m_atOnce(atOnce)
    {
    }
    ~ForkedRuns() { finish(); }

    /** Starts @p body, whose result is the exit code, when there is room; @p report comes later. */
    void start(const std::function<int()> &body, const Report &report);
    /** Waits for all that were started. */
    void finish();

private:
    struct Running
    {
        int output; ///< a file that is in memory only
        Report report;
    };

    void collectOne();

    int m_atOnce;
    std::map<int, Running> m_running; ///< by process
};
