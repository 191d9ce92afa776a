// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hourrecording.h"
#include "limittable.h"
#include "processrun.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

// What writing tracks and tables costs, beside its limits:
//
//   cmake --preset bench && cmake --build --preset bench && build/bench/bench/track-benchmark
//
// Processes are compared with others of the same run, on recordings of 4 GB in a temporary folder
// (TMPDIR), which are read from the page cache. The status is 1 when a limit is exceeded or could
// not be measured.

namespace {

constexpr int Rounds = 9;
constexpr int SlowRounds = 3;
constexpr double MaxTimesFfprobe = 1.0;
constexpr double MaxTimesExiftool = 0.1;
constexpr double MaxTimesReading = 2.0; // writing on top of reading costs no more than that
constexpr double MaxTimesReadingMemory = 1.5;

/** The median of some runs. */
struct Cost
{
    double ms = Unmeasured;
    double peakKib = Unmeasured;
};

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

Cost costOf(const QStringList &command, int rounds, const QString &output)
{
    QVector<double> ms;
    QVector<double> kib;
    for (int i = 0; i < rounds; ++i) {
        const ProcessRun run = runProcess(command, output);
        if (!run.isGood)
            return Cost();
        ms.append(run.seconds * 1000.0);
        kib.append(run.peakKib);
    }
    return {median(ms), median(kib)};
}

/** Others' programs do not look at the telemetry: what they need does not grow with it, and is no
 *  limit where there is much of it. */
void addRatio(const std::string &text, double measured, double limit, bool isLimited,
              LimitTable &table)
{
    if (isLimited)
        table.add(text, measured, limit);
    else
        table.addFigure(text + " " + number(measured, 2));
}

void judgeHour(const std::string &name, const QString &recording, const QString &folder,
               bool isLimited, LimitTable &table)
{
    const QString own = QStringLiteral(TELEMETRY_COMMAND);
    const QString output = folder + QStringLiteral("/track");
    const Cost reading = costOf({own, "--info", recording}, Rounds, output);
    const Cost ffprobe = costOf(
        {"ffprobe", "-v", "error", "-show_format", "-show_streams", recording}, Rounds, output);
    const Cost exiftool = costOf({"exiftool", "-ee", "-p", "$gpslatitude $gpslongitude", recording},
                                 SlowRounds, output);
    table.addFigure(name + ": ffprobe " + number(ffprobe.ms, 1) + " ms, exiftool " +
                    number(exiftool.ms, 1) + " ms, --info " + number(reading.ms, 1) + " ms");
    for (const char *format : {"gpx", "csv", "geojson", "json"}) {
        const Cost cost = costOf({own, "--format", format, recording}, Rounds, output);
        const std::string what = name + " to " + format + " (" + number(cost.ms, 1) + " ms)";
        addRatio(what + ": time to ffprobe's", cost.ms / ffprobe.ms, MaxTimesFfprobe, isLimited,
                 table);
        addRatio(what + ": time to exiftool's", cost.ms / exiftool.ms, MaxTimesExiftool, isLimited,
                 table);
        table.add(what + ": time to --info's", cost.ms / reading.ms, MaxTimesReading);
        table.add(what + ": memory to --info's", cost.peakKib / reading.peakKib,
                  MaxTimesReadingMemory);
    }
    QFile::remove(output);
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        qFatal("%s", qPrintable(folder.errorString()));
    const struct
    {
        const char *name;
        HourLayout layout;
        bool isLimited;
    } hours[] = {{"hour of 3600", {1, 1}, true}, {"hour of 108000", {30, 1}, false}};
    LimitTable table;
    for (const auto &hour : hours) {
        const QString recording = writeHourRecording(folder.path(), hour.layout).recording.fileName;
        judgeHour(hour.name, recording, folder.path(), hour.isLimited, table);
        QFile::remove(recording);
    }
    return table.print() ? 0 : 1;
}
