// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QVector>

#include <optional>

/** The figures of a drive. What nothing was measured for is nothing or 0. */
struct DriveSummary
{
    std::optional<qint64>
        firstS; ///< as SampleTime::localSeconds(), of the first sample that has one
    std::optional<qint64> lastS;
    std::optional<GpsData> firstFix;
    std::optional<GpsData> lastFix;
    int fixCount = 0;          ///< samples with a fix
    double distanceM = 0.0;    ///< along the track, without its interruptions
    int highestSpeedKmh = 0;   ///< of samples with a fix, as is the next
    double meanSpeedKmh = 0.0; ///< of the samples' speeds
    qint64 longestStopS = 0;   ///< from the first to the last sample of speed 0 in a row
    double strongestG = 0.0;   ///< magnitude of the acceleration
    int strongestSample = -1;  ///< its index
};

DriveSummary summaryOf(const QVector<GpsData> &samples);

/** Metres between two positions along the great circle, on a sphere of the Earth's mean radius
 *  (6371008.8 m), by the haversine formula. */
double greatCircleM(const GpsData &from, const GpsData &to);
