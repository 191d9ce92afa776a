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
    curve.xRange = isPerSample ? samples.size() : durationS;
    for (int i = 0; i < curve.xRange && sampleCount > float(i) * step; ++i) {
        const GpsData &sample = samples.at(int(float(i) * step));
        curve.points.append({sample.gsensorX, sample.gsensorY, sample.gsensorZ});
    }
    return curve;
}
