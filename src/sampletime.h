// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QByteArray>

#include <optional>

/**
 * The time of a sample. Cameras write the time of day where they are, and no zone, so that it is a
 * moment only together with an offset from UTC that somebody knows.
 */
namespace SampleTime {

/** Seconds of the camera's own calendar and clock, counted from 1970 as if it kept UTC; nothing if
 *  the sample's digits are no date and time. */
std::optional<qint64> localSeconds(const GpsData &sample);

/** "2026-03-14T09:26:00", of seconds as localSeconds() counts them. */
QByteArray isoText(qint64 seconds);
/** The same moment in UTC, "2026-03-14T08:26:00Z", where local time is @p utcOffsetS ahead. */
QByteArray utcText(qint64 localSeconds, int utcOffsetS);

/** Seconds ahead of UTC, from "+01:00", "-03:30" or "Z"; nothing for any other text, or for more
 *  than 14 hours, which no zone has. */
std::optional<int> utcOffsetFrom(const QString &text);

} // namespace SampleTime
