// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "trackwriter.h"

/**
 * GPX 1.1: one track, a segment for each uninterrupted stretch, a point for each sample on it.
 *
 * A point has the moment only if the offset from UTC is known, as the format counts in UTC; else
 * its local time stands in an extension. Speed and course, for which version 1.1 has no elements,
 * stand in the extension that most programs read, the accelerations in one of our own.
 */
class GpxWriter : public TrackWriter
{
public:
    GpxWriter(QIODevice *device, const TrackOptions &options) : TrackWriter(device, options) {}

    void begin(const QString &title) override;
    void write(const Drive &drive) override;

protected:
    void end() override;

private:
    void writePoint(const GpsData &sample);
};
