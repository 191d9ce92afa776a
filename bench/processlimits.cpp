// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "processlimits.h"

#include "hourrecording.h"
#include "processfigures.h"
#include "processrun.h"
#include "sampleloops.h"

#include <QFile>

#include <algorithm>
#include <vector>

namespace {

constexpr int ProcessPairs = 15;
constexpr double MaxTimesNeededBytes = 2.0;
constexpr double MaxTimesFfprobe = 0.5;
constexpr double MaxBytesPerSample = 200.0;

struct HourCase
{
    const char *name;
    HourLayout layout;
    bool isForMemory; ///< the fixed part of the memory needs many samples to vanish
};

constexpr HourCase HourCases[] = {
    {"hour of 3600", {1, 1}, false},
    {"hour of 108000, 1 by 1", {30, 1}, true},
    {"hour of 108000, 30 by 30", {1, 30}, true},
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void judgeBytesRead(const std::string &name, const HourRecording &hour, LimitTable &table)
{
    decodeAll(hour.recording); // reads the time zone, which is kept from then on
    const ReadCounter counter;
    const bool isRight = decodeAll(hour.recording) == hour.recording.sampleCount();
    const quint64 read = counter.bytesSince();
    table.add(name + ": bytes read (" + std::to_string(read) + ") to needed (" +
                  std::to_string(hour.neededBytes) + ")",
              isRight ? double(read) / double(hour.neededBytes) : Unmeasured, MaxTimesNeededBytes);
}

/** Whether the process that is timed does all that it is timed for. */
bool findsEverything(const BenchRecording &recording)
{
    const QByteArray count = QByteArray::number(recording.sampleCount());
    return outputOf({READ_RECORDING, recording.fileName}) ==
           "samples=" + count + " size=1920x1080 seconds=3600\n";
}

/** Whether the recording is one to a media program, too: the comparison would be unfair else. */
bool hasBothStreams(const QString &fileName)
{
    const QByteArray said =
        outputOf({"ffprobe", "-v", "error", "-show_format", "-show_streams", fileName});
    return said.contains("codec_name=h264") && said.contains("width=1920") &&
           said.contains("codec_name=aac") && said.contains("duration=3600.");
}

void judgeProcesses(const std::string &name, const BenchRecording &recording, LimitTable &table)
{
    const QString fileName = recording.fileName;
    const QStringList own{READ_RECORDING, fileName};
    const QStringList other{"ffprobe", "-v", "error", "-show_format", "-show_streams", fileName};
    bool isGood = findsEverything(recording) && hasBothStreams(fileName);
    std::vector<double> ownMs;
    std::vector<double> otherMs;
    for (int i = 0; i < ProcessPairs && isGood; ++i) {
        const ProcessRun ownRun = runProcess(own);
        const ProcessRun otherRun = runProcess(other);
        isGood = ownRun.isGood && otherRun.isGood;
        ownMs.push_back(ownRun.seconds * 1000.0);
        otherMs.push_back(otherRun.seconds * 1000.0);
    }
    if (!isGood) {
        table.add(name + ": wall time to ffprobe's", Unmeasured, MaxTimesFfprobe);
        return;
    }
    table.add(name + ": wall time (" + number(median(ownMs), 1) + " ms) to ffprobe's (" +
                  number(median(otherMs), 1) + " ms)",
              median(ownMs) / median(otherMs), MaxTimesFfprobe);
}

double figure(const QByteArray &line, const QByteArray &key)
{
    for (const QByteArray &field : line.trimmed().split(' ')) {
        if (field.startsWith(key))
            return field.mid(key.size()).toDouble();
    }
    return Unmeasured;
}

} // namespace

void judgeMemory(const std::string &name, const BenchRecording &recording, LimitTable &table)
{
    const QByteArray said = outputOf({READ_RECORDING, "--memory", recording.fileName});
    const double samples = figure(said, "samples=");
    const double grownKib = figure(said, "peak_kib=") - figure(said, "start_kib=");
    const bool isComplete = samples == double(recording.sampleCount());
    table.add(name + ": peak bytes per sample (" + number(grownKib / 1024.0, 1) + " MiB)",
              isComplete ? grownKib * 1024.0 / samples : Unmeasured, MaxBytesPerSample);
}

void judgeHours(const QString &folder, LimitTable &table)
{
    for (const HourCase &hourCase : HourCases) {
        const HourRecording hour = writeHourRecording(folder, hourCase.layout);
        judgeBytesRead(hourCase.name, hour, table);
        judgeProcesses(hourCase.name, hour.recording, table);
        if (hourCase.isForMemory)
            judgeMemory(hourCase.name, hour.recording, table);
        QFile::remove(hour.recording.fileName);
    }
}
