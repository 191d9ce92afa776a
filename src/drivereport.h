// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackwriter.h"

/** Facts and figures of drives, as text for people or as JSON: begin(), write() for each drive,
 *  finish(). */
class DriveReport : public TrackWriter
{
public:
    DriveReport(QIODevice *device, const TrackOptions &options, bool isJson)
        : TrackWriter(device, options), mIsJson(isJson)
    {}

    void begin(const QString &title) override;
    void write(const Drive &drive) override;

protected:
    void end() override;

private:
    void writeText(const Drive &drive);
    void writeJson(const Drive &drive);
    double speed(double speedKmh) const;
    const char *unit() const;

    bool mIsJson = false;
    bool mIsFirst = true;
};
