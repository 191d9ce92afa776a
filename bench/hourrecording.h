// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "benchrecordings.h"

/** An hour of a camera's work. */
struct HourRecording
{
    BenchRecording recording;
    quint64 neededBytes = 0; ///< of headers, table entries and blocks, without which no parser can
};

/** How the telemetry is strewn among pictures and sound. */
struct HourLayout
{
    quint32 slotsPerSecond; ///< a divisor of 30
    quint32 blocksPerSlot;  ///< one behind the other
};

/**
 * Writes one hour of 4 GB into @p folder: picture and sound that begin as those of a real clip and
 * go on as holes, their tables complete, and the telemetry (scheme 2) between them. "moov" is at
 * the end.
 */
HourRecording writeHourRecording(const QString &folder, const HourLayout &layout);
