// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "gyrodata.h"

#include <QVector>

/** What the chart shows of a recording. */
struct GyroCurve
{
    int xRange = 0; ///< the number of points that the x axis has room for
    float samplesPerPoint = 1.0f;
    QVector<GyroData> points;
};

/**
 * Chooses the points of the chart: one for each second of a recording of @p durationS seconds
 * where there is a sample for each of its @p frameRate frames, the first of that second; else one
 * for each sample. A frame rate of 0 or less is unknown.
 */
GyroCurve gyroCurveOf(const QList<GpsData> &samples, int durationS, float frameRate);

/** The sample that a point of a curve shows. */
int sampleOfPoint(int point, float samplesPerPoint);

/** The second of the recording in which a sample was measured, which is the point that stands for
 *  it in the curve. Samples that are not one for each frame are one for each second. */
int secondOfSample(int sample, float samplesPerPoint);
