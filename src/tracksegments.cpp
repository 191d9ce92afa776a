// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracksegments.h"

#include "fix.h"
#include "sampletime.h"

namespace {

bool isInterrupted(std::optional<qint64> before, std::optional<qint64> now)
{
    return before && now && (*now < *before || *now - *before > LongestStepS);
}

} // namespace

QVector<SegmentRange> trackSegments(const QVector<GpsData> &samples)
{
    QVector<SegmentRange> segments;
    std::optional<qint64> lastS;
    for (int i = 0; i < samples.size(); ++i) {
        if (!hasFix(samples.at(i)))
            continue;
        const std::optional<qint64> seconds = SampleTime::localSeconds(samples.at(i));
        const bool goesOn = !segments.isEmpty() && segments.last().last == i - 1;
        if (goesOn && !isInterrupted(lastS, seconds))
            segments.last().last = i;
        else
            segments.append({i, i});
        lastS = seconds;
    }
    return segments;
}
