// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "trackwriter.h"

/** A table (RFC 4180) with a line of headings and a row for each sample, with or without a fix.
 * What a sample does not tell is an empty field. */
class CsvWriter : public TrackWriter
{
public:
    CsvWriter(QIODevice *device, const TrackOptions &options) : TrackWriter(device, options) {}

    void begin(const QString &title) override;
    void write(const Drive &drive) override;

protected:
    void end() override {}

private:
    void writeTimes(const GpsData &sample);
    void writeSpeed(int speedKmh);
};
