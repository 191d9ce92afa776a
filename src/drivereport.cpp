// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "drivereport.h"

#include "drive.h"
#include "drivesummary.h"
#include "jsonwriter.h"
#include "sampletime.h"

namespace {

void writeMoment(TextOutput &out, const char *name, std::optional<qint64> seconds,
                 const std::optional<GpsData> &fix)
{
    out << name << (seconds ? SampleTime::isoText(*seconds) : QByteArray("no time"));
    if (!fix) {
        out << ", no position\n";
        return;
    }
    (out << ", ").fixed(fix->latitude, PositionDecimals) << " ";
    out.fixed(fix->longitude, PositionDecimals) << "\n";
}

void writeJsonMoment(TextOutput &out, const char *name, std::optional<qint64> seconds,
                     const std::optional<GpsData> &fix)
{
    out << ",\"" << name << "_time\":";
    if (seconds)
        out << "\"" << SampleTime::isoText(*seconds) << "\"";
    else
        out << "null";
    out << ",\"" << name << "_position\":";
    if (!fix) {
        out << "null";
        return;
    }
    (out << "[").fixed(fix->longitude, PositionDecimals) << ",";
    out.fixed(fix->latitude, PositionDecimals) << "]";
}

} // namespace

void DriveReport::begin(const QString &)
{
    if (mIsJson)
        out() << "{\"recordings\":[";
}

void DriveReport::write(const Drive &drive)
{
    if (mIsJson)
        writeJson(drive);
    else
        writeText(drive);
    mIsFirst = false;
}

void DriveReport::end()
{
    if (mIsJson)
        out() << "\n]}\n";
}

void DriveReport::writeText(const Drive &drive)
{
    const DriveSummary summary = summaryOf(drive.samples);
    out() << (mIsFirst ? "" : "\n") << drive.fileName.toUtf8() << "\n  Container           "
          << (drive.isAvi ? "AVI" : "MP4") << "\n  Telemetry           "
          << schemeName(drive.scheme).toUtf8() << "\n  Picture             " << drive.info.width
          << " x " << drive.info.height << "\n  Duration            " << qint64(drive.info.duration)
          << " s\n  Frame rate          ";
    out().fixed(double(drive.info.frameRate), 1)
        << " /s\n  Samples             " << drive.samples.size() << ", " << summary.fixCount
        << " with a position\n";
    if (drive.samples.isEmpty())
        return;
    writeMoment(out(), "  First               ", summary.firstS, summary.firstFix);
    writeMoment(out(), "  Last                ", summary.lastS, summary.lastFix);
    (out() << "  Distance            ").fixed(summary.distanceM / 1000.0, 3) << " km\n";
    (out() << "  Highest speed       ").fixed(speed(summary.highestSpeedKmh), 1) << unit() << "\n";
    (out() << "  Mean speed          ").fixed(speed(summary.meanSpeedKmh), 1) << unit() << "\n";
    out() << "  Longest stop        " << summary.longestStopS << " s\n";
    (out() << "  Strongest           ").fixed(summary.strongestG, AccelerationDecimals)
        << " g, sample " << summary.strongestSample << "\n";
}

void DriveReport::writeJson(const Drive &drive)
{
    const DriveSummary summary = summaryOf(drive.samples);
    const bool inMiles = options().speedUnit == TrackOptions::MilesPerHour;
    const char *const suffix = inMiles ? "_mph\":" : "_kmh\":";
    out() << (mIsFirst ? "\n{" : ",\n{");
    writeFacts(out(), drive);
    out() << ",\"position_count\":" << summary.fixCount;
    writeJsonMoment(out(), "first", summary.firstS, summary.firstFix);
    writeJsonMoment(out(), "last", summary.lastS, summary.lastFix);
    (out() << ",\"distance_m\":").fixed(summary.distanceM, 1);
    (out() << ",\"highest_speed" << suffix).fixed(speed(summary.highestSpeedKmh), 1);
    (out() << ",\"mean_speed" << suffix).fixed(speed(summary.meanSpeedKmh), 1);
    out() << ",\"longest_stop_s\":" << summary.longestStopS;
    (out() << ",\"strongest_g\":").fixed(summary.strongestG, AccelerationDecimals);
    out() << ",\"strongest_sample\":" << summary.strongestSample << "}";
}

double DriveReport::speed(double speedKmh) const
{
    return options().speedUnit == TrackOptions::MilesPerHour ? milesPerHour(speedKmh) : speedKmh;
}

const char *DriveReport::unit() const
{
    return options().speedUnit == TrackOptions::MilesPerHour ? " mph" : " km/h";
}
