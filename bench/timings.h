// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/**
 * Shows the shortest repetition of each benchmark and keeps it, the shortest of all when benchmarks
 * have the same name.
 *
 * What counts is the processor time, of the kernel as well: all files are in the page cache, so
 * that nobody waits for a disk, and other programs that use the machine meanwhile disturb it least.
 */
class Timings : public benchmark::ConsoleReporter
{
public:
    Timings() : ConsoleReporter(OO_None) {}

    /** Empties the caches of the processor. Before each pass, so that a small file is not faster
     * for being read again and again. */
    static void emptyCaches();

    /** Gives a benchmark what it needs to be kept: so many repetitions of one pass each. */
    static void prepare(benchmark::internal::Benchmark *benchmark, int repetitions);

    void ReportRuns(const std::vector<Run> &runs) override;

    /** Processor time of the shortest pass; not a number when the benchmark failed or did not run.
     */
    double milliseconds(const std::string &name) const;

private:
    void keep(const std::string &name, double milliseconds);

    std::map<std::string, double> mMilliseconds;
};
