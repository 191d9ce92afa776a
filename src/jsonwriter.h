// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "trackwriter.h"

/** All that recordings hold, as JSON: a list of recordings with their facts and all their samples,
 *  with or without a fix. Texts of the camera stand as it wrote them, byte by byte as Latin-1. */
class JsonWriter : public TrackWriter
{
public:
    JsonWriter(QIODevice *device, const TrackOptions &options) : TrackWriter(device, options) {}

    void begin(const QString &title) override;
    void write(const Drive &drive) override;

protected:
    void end() override;

private:
    void writeSample(const GpsData &sample);
    void writeTimes(const GpsData &sample);

    bool mIsFirst = true;
};

/** The facts of a recording as members of a JSON object, without its braces. */
void writeFacts(TextOutput &out, const Drive &drive);
