// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QVector>

/** Samples @p first to @p last of a drive, both included. */
struct SegmentRange
{
    int first = 0;
    int last = 0;
};

/** Seconds without a sample after which a track is interrupted. */
constexpr qint64 LongestStepS = 5;

/**
 * The uninterrupted stretches of a drive. A new one begins after samples without a fix,
 * after more than LongestStepS without any, and where the camera's clock was set back. Times that
 * cannot be read interrupt nothing.
 */
QVector<SegmentRange> trackSegments(const QVector<GpsData> &samples);
