// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

#include <benchmark/benchmark.h>

/// Our way of doing something beside the bare toolkit's, taken in turns in one process, so that
/// both meet the same machine in the same state.
namespace Paired {

constexpr int repetitions = 7;

/// The time that \a work takes, in seconds.
template <typename Work>
double secondsOf(Work &&work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Runs both in turns and reports the median of the ratios ours / bare. Each is a callable that
/// returns the seconds to count, so that preparation and cleaning up can stay outside.
template <typename Ours, typename Bare>
void compare(benchmark::State &state, Ours &&ours, Bare &&bare)
{
    std::vector<double> ratios;
    std::vector<double> oursMs;
    std::vector<double> bareMs;
    for (auto _ : state) {
        const double bareSeconds = bare();
        const double ourSeconds = ours();
        state.SetIterationTime(ourSeconds);
        ratios.push_back(ourSeconds / bareSeconds);
        oursMs.push_back(ourSeconds * 1000);
        bareMs.push_back(bareSeconds * 1000);
    }
    state.counters["ours_ms"] = median(oursMs);
    state.counters["bare_ms"] = median(bareMs);
    state.counters["ratio"] = median(ratios);
}

} // namespace Paired
