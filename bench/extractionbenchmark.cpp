// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchrecordings.h"
#include "limittable.h"
#include "processlimits.h"
#include "sampleloops.h"
#include "timings.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

// What reading the telemetry of recordings costs, beside its limits:
//
//   cmake --preset bench && cmake --build --preset bench && build/bench/bench/extraction-benchmark
//
// All is measured in one run, on files that are written into a temporary folder (TMPDIR); they are
// read from the page cache. The status is 1 when a limit is exceeded or could not be measured.

namespace {

constexpr quint32 ManySamples = 100000;
constexpr int SpeedRepetitions = 15;
// The longer a pass, the seldomer it is left alone: the repetitions grow with the chunks. The sizes
// take turns, so that a busy while of the machine does not fall on one of them alone.
constexpr quint32 ChunksPerRepetition = 200;
constexpr int ScalingRounds = 6;

// The bare loop does nothing but read: as many reads as there are table entries and blocks.
constexpr double MaxTimesBareLoop = 1.6;
constexpr double MaxTimesPerDoubling = 2.2;

// So far apart lie the blocks where 100,000 of them are strewn over 4 GB.
constexpr quint32 ScatteredPitch = 42000;

struct SpeedCase
{
    const char *name;
    TelemetryLayout layout;
};

constexpr SpeedCase SpeedCases[] = {
    {"scheme 1, scattered", {1, ManySamples + 1, ScatteredPitch}},
    {"scheme 1, in a row", {1, ManySamples + 1, 0}},
    {"scheme 2, scattered", {2, ManySamples + 1, ScatteredPitch}},
    {"scheme 2, in a row", {2, ManySamples + 1, 0}},
    {"scheme 4", {4, ManySamples + 1, 0}},
    {"scheme 6, scattered", {6, ManySamples + 1, ScatteredPitch}},
    {"scheme 6, in a row", {6, ManySamples + 1, 0}},
    {"scheme 7", {7, ManySamples + 1, 0}},
};

constexpr quint32 SoundChunkCounts[] = {1000, 2000, 4000, 8000};

/** Writes recordings as they are asked for and keeps only the last: together they are too large. */
class RecordingShelf
{
public:
    explicit RecordingShelf(const QString &folder) : mFolder(folder) {}
    ~RecordingShelf() { clear(); }
    Q_DISABLE_COPY(RecordingShelf)

    const BenchRecording &recording(const TelemetryLayout &layout)
    {
        if (!(layout == mLayout)) {
            clear();
            mRecording = writeBenchRecording(mFolder, layout);
            mLayout = layout;
        }
        return mRecording;
    }

    void clear()
    {
        if (!mRecording.fileName.isEmpty())
            QFile::remove(mRecording.fileName);
        mRecording = {};
        mLayout = {0, 0, 0};
    }

private:
    QString mFolder;
    TelemetryLayout mLayout{0, 0, 0};
    BenchRecording mRecording;
};

/** Returns how many samples were read as they were written. */
using Pass = int (*)(const BenchRecording &, benchmark::State &);

int decodePass(const BenchRecording &recording, benchmark::State &)
{
    return decodeAll(recording);
}

/** What the walk has brought into the caches would serve the samples of small files only: the step
 *  to the larger ones would be that of the machine. */
int decodeColdPass(const BenchRecording &recording, benchmark::State &state)
{
    return decodeAll(recording, [&state] {
        state.PauseTiming();
        Timings::emptyCaches();
        state.ResumeTiming();
    });
}

int barePass(const BenchRecording &recording, benchmark::State &)
{
    return readAllBarely(recording);
}

void addTiming(const std::string &name, Pass pass, int repetitions, RecordingShelf &shelf,
               const TelemetryLayout &layout)
{
    const auto run = [=, &shelf](benchmark::State &state) {
        const BenchRecording &recording = shelf.recording(layout);
        Timings::emptyCaches();
        for (auto _ : state) {
            if (pass(recording, state) != recording.sampleCount()) {
                state.SkipWithError("these are not the samples written");
                break;
            }
        }
    };
    Timings::prepare(benchmark::RegisterBenchmark(name.c_str(), run), repetitions);
}

std::string soundChunkName(quint32 count)
{
    return "scheme 8, " + std::to_string(count) + " chunks";
}

void registerTimings(RecordingShelf &shelf)
{
    for (const SpeedCase &speed : SpeedCases) {
        addTiming(speed.name, decodePass, SpeedRepetitions, shelf, speed.layout);
        addTiming(std::string(speed.name) + ", bare", barePass, SpeedRepetitions, shelf,
                  speed.layout);
    }
    for (int round = 0; round < ScalingRounds; ++round) {
        for (const quint32 count : SoundChunkCounts)
            addTiming(soundChunkName(count), decodeColdPass, int(count / ChunksPerRepetition),
                      shelf, {8, count, 0});
    }
}

void judgeSpeed(const Timings &timings, LimitTable &table)
{
    for (const SpeedCase &speed : SpeedCases) {
        const double own = timings.milliseconds(speed.name);
        const double bare = timings.milliseconds(std::string(speed.name) + ", bare");
        const std::string rate = number(ManySamples / own / 1000.0, 2);
        table.add(std::string(speed.name) + " (" + rate + " million samples/s): times bare loop",
                  own / bare, MaxTimesBareLoop);
    }
}

void judgeScaling(const Timings &timings, LimitTable &table)
{
    double half = Unmeasured;
    for (const quint32 count : SoundChunkCounts) {
        const double whole = timings.milliseconds(soundChunkName(count));
        const std::string text = soundChunkName(count) + " (" + number(whole, 2) + " ms)";
        if (count == SoundChunkCounts[0])
            table.addFigure(text);
        else
            table.add(text + ": times half as many", whole / half, MaxTimesPerDoubling);
        half = whole;
    }
}

void judgeMillion(int scheme, RecordingShelf &shelf, LimitTable &table)
{
    const BenchRecording &recording = shelf.recording({scheme, 1000001, 0});
    judgeMemory("million of scheme " + std::to_string(scheme), recording, table);
}

bool keepsAllLimits(const Timings &timings, const QString &folder, RecordingShelf &shelf)
{
    LimitTable table;
    judgeSpeed(timings, table);
    judgeScaling(timings, table);
    shelf.clear();
    judgeHours(folder, table);
    for (const int scheme : {4, 7})
        judgeMillion(scheme, shelf, table);
    return table.print();
}

void showAllButDebugLines(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    qInstallMessageHandler(showAllButDebugLines);
    const QTemporaryDir folder;
    if (!folder.isValid())
        qFatal("%s", qPrintable(folder.errorString()));
    RecordingShelf shelf(folder.path());
    registerTimings(shelf);
    Timings timings;
    benchmark::RunSpecifiedBenchmarks(&timings);
    return keepsAllLimits(timings, folder.path(), shelf) ? 0 : 1;
}
