// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "gyrosampling.h"

GyroCurve gyroCurveOf(const QList<GpsData> &samples, int durationS, float frameRate)
{
    const float sampleCount = float(samples.size());
    const bool isPerSample =
        frameRate <= 0.0f || sampleCount < (float(durationS) - 1.0f) * frameRate;
    const float step = isPerSample ? 1.0f : frameRate;

    GyroCurve curve;
    curve.samplesPerPoint = step;
    curve.xRange = isPerSample ? samples.size() : durationS;
    for (int i = 0; i < curve.xRange && sampleCount > float(i) * step; ++i) {
        const GpsData &sample = samples.at(sampleOfPoint(i, step));
        curve.points.append({sample.gsensorX, sample.gsensorY, sample.gsensorZ});
    }
    return curve;
}

int sampleOfPoint(int point, float samplesPerPoint)
{
    return int(float(point) * samplesPerPoint);
}

int secondOfSample(int sample, float samplesPerPoint)
{
    const int second = int(float(sample) / samplesPerPoint);
    // The first sample of a second lies a fraction of a frame before it.
    return sampleOfPoint(second + 1, samplesPerPoint) <= sample ? second + 1 : second;
}
