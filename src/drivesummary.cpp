// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "drivesummary.h"

#include "fix.h"
#include "sampletime.h"
#include "tracksegments.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double EarthRadiusM = 6371008.8;

void addTimes(DriveSummary &summary, const QVector<GpsData> &samples)
{
    std::optional<qint64> stoppedS;
    for (const GpsData &sample : samples) {
        const std::optional<qint64> seconds = SampleTime::localSeconds(sample);
        if (!seconds)
            continue;
        if (!summary.firstS)
            summary.firstS = seconds;
        summary.lastS = seconds;
        if (!hasFix(sample) || sample.speed != 0)
            stoppedS.reset();
        else if (!stoppedS)
            stoppedS = seconds;
        else
            summary.longestStopS = std::max(summary.longestStopS, *seconds - *stoppedS);
    }
}

void addMotion(DriveSummary &summary, const QVector<GpsData> &samples)
{
    double speeds = 0.0;
    int count = 0;
    for (const GpsData &sample : samples) {
        const double strength =
            std::hypot(double(sample.gsensorX), double(sample.gsensorY), double(sample.gsensorZ));
        if (strength > summary.strongestG) {
            summary.strongestG = strength;
            summary.strongestSample = sample.id;
        }
        if (!hasFix(sample))
            continue;
        summary.highestSpeedKmh = std::max(summary.highestSpeedKmh, sample.speed);
        speeds += sample.speed;
        ++count;
    }
    if (count > 0)
        summary.meanSpeedKmh = speeds / count;
}

} // namespace

DriveSummary summaryOf(const QVector<GpsData> &samples)
{
    DriveSummary summary;
    addTimes(summary, samples);
    addMotion(summary, samples);
    const QVector<SegmentRange> segments = trackSegments(samples);
    for (const SegmentRange &segment : segments) {
        summary.fixCount += segment.last - segment.first + 1;
        for (int i = segment.first; i < segment.last; ++i)
            summary.distanceM += greatCircleM(samples.at(i), samples.at(i + 1));
    }
    if (!segments.isEmpty()) {
        summary.firstFix = samples.at(segments.first().first);
        summary.lastFix = samples.at(segments.last().last);
    }
    return summary;
}

double greatCircleM(const GpsData &from, const GpsData &to)
{
    const double fromLatitude = qDegreesToRadians(from.latitude);
    const double toLatitude = qDegreesToRadians(to.latitude);
    const double halfLatitude = std::sin((toLatitude - fromLatitude) / 2.0);
    const double halfLongitude = std::sin(qDegreesToRadians(to.longitude - from.longitude) / 2.0);
    const double square = halfLatitude * halfLatitude + std::cos(fromLatitude) *
                                                            std::cos(toLatitude) * halfLongitude *
                                                            halfLongitude;
    return 2.0 * EarthRadiusM * std::asin(std::sqrt(std::min(square, 1.0)));
}
