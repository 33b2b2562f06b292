// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <benchmarks/synthetic.h>

/**
 * Our way of doing something beside the bare toolkit's, taken in turns in one process, so that
 * both meet the same machine in the same state.
 */
namespace Paired {

constexpr int repetitions = 7;
constexpr int fewRepetitions = 3; ///< where only the growth is looked at
constexpr int gateSizes[] = {1000, 10000};
constexpr int largeSize = 100000; ///< run once

/**
 * The processor time that this process has taken, in seconds. The time on the wall would count
 * whatever else the machine does.
 */
inline double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/** The processor time that @p work takes, in seconds. */
template <typename Work>
double secondsOf(Work &&work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/**
 * Runs both in turns and reports the median of the ratios ours / bare. Each is a callable that
 * returns the seconds to count, so that preparation and cleaning up can stay outside.
 */
template <typename Ours, typename Bare>
void compare(benchmark::State &state, Ours &&ours, Bare &&bare)
{
    std::vector<double> ratios;
    std::vector<double> oursMs;
    std::vector<double> bareMs;
    bool oursFirst = false;
    for (auto _ : state) {
        double ourSeconds = oursFirst ? ours() : 0;
        const double bareSeconds = bare();
        if (!oursFirst)
            ourSeconds = ours();
        oursFirst = !oursFirst;
        state.SetIterationTime(ourSeconds);
        ratios.push_back(ourSeconds / bareSeconds);
        oursMs.push_back(ourSeconds * 1000);
        bareMs.push_back(bareSeconds * 1000);
    }
    state.counters["ours_ms"] = median(oursMs);
    state.counters["bare_ms"] = median(bareMs);
    state.counters["ratio"] = median(ratios);
}

/** Registers @p run for a document of that shape and size under "name/shape/size". */
template <typename Run>
benchmark::internal::Benchmark *add(const std::string &name, Synthetic::Shape shape, int size,
                                    Run &&run)
{
    const std::string shapeName = Synthetic::nameOf(shape).toStdString();
    return benchmark::RegisterBenchmark(
               (name + '/' + shapeName + '/' + std::to_string(size)).c_str(),
               [shape, size, run](benchmark::State &state) { run(state, shape, size); })
        ->Unit(benchmark::kMillisecond);
}

enum class Sizes {
    All,
    GatesOnly, ///< where the bare toolkit alone takes minutes for the large one
};

/**
 * Registers a comparison for every shape and size that it is reported for. A @p Case is made of
 * shape and size, which is not timed, and has ours() and bare(), which return seconds.
 */
template <typename Case>
void addRow(const std::string &name, Sizes sizes = Sizes::All)
{
    const auto run = [](benchmark::State &state, Synthetic::Shape shape, int size) {
        Case subject(shape, size);
        compare(
            state, [&subject] { return subject.ours(); }, [&subject] { return subject.bare(); });
    };
    using Synthetic::Shape;
    for (const int size : gateSizes) {
        add(name, Shape::Fan, size, run)->UseManualTime()->Iterations(repetitions);
        for (const Shape shape : {Shape::Wide, Shape::Wide2})
            add(name, shape, size, run)->UseManualTime()->Iterations(fewRepetitions);
    }
    if (sizes == Sizes::All)
        add(name, Shape::Fan, largeSize, run)->UseManualTime()->Iterations(1);
}

} // namespace Paired
