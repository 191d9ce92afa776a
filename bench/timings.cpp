// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "timings.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

const char Shortest[] = "min";

double shortest(const std::vector<double> &values)
{
    return *std::min_element(values.begin(), values.end());
}

} // namespace

void Timings::emptyCaches()
{
    constexpr size_t moreThanAnyCache = 64 * 1024 * 1024;
    constexpr size_t cacheLine = 64;
    static std::vector<char> memory(moreThanAnyCache);
    for (size_t i = 0; i < memory.size(); i += cacheLine)
        ++memory[i];
    benchmark::ClobberMemory();
}

void Timings::prepare(benchmark::internal::Benchmark *benchmark, int repetitions)
{
    benchmark->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->Iterations(1)
        ->Repetitions(repetitions)
        ->DisplayAggregatesOnly()
        ->ComputeStatistics(Shortest, shortest);
}

void Timings::ReportRuns(const std::vector<Run> &runs)
{
    std::vector<Run> shown;
    for (const Run &run : runs) {
        if (run.error_occurred || run.aggregate_name == Shortest)
            shown.push_back(run);
        if (!run.error_occurred && run.aggregate_name == Shortest)
            keep(run.run_name.function_name, run.GetAdjustedCPUTime());
    }
    if (!shown.empty())
        ConsoleReporter::ReportRuns(shown);
}

void Timings::keep(const std::string &name, double milliseconds)
{
    const auto known = mMilliseconds.emplace(name, milliseconds).first;
    known->second = std::min(known->second, milliseconds);
}

double Timings::milliseconds(const std::string &name) const
{
    const auto found = mMilliseconds.find(name);
    return found == mMilliseconds.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}
