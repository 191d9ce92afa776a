// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "textoutput.h"

#include <QString>

#include <memory>
#include <optional>

class QIODevice;
struct Drive;

/** What a user may want of a written drive. */
struct TrackOptions
{
    /** Of speeds in tables; tracks keep the units of their formats. */
    enum SpeedUnit
    {
        KilometresPerHour,
        MilesPerHour
    };

    std::optional<int> utcOffsetS; ///< how far the camera's clock was ahead of UTC, if known
    SpeedUnit speedUnit = KilometresPerHour;
};

/** The numbers of digits that a recording holds: a ten-thousandth of a minute, a hundredth of g.
 *  A course is computed, and better than a tenth of a degree only on long legs. */
constexpr int PositionDecimals = 7;
constexpr int AccelerationDecimals = 2;
constexpr int CourseDecimals = 1;
constexpr int SpeedDecimals = 2; // of converted speeds; measured are whole km/h

/** @p speedKmh in another unit. */
double metresPerSecond(double speedKmh);
double milesPerHour(double speedKmh);

/**
 * Writes drives to a device, as one document: begin(), write() for each drive, finish(). Each
 * format is a class of its own; docs/track-formats.md describes what they write.
 *
 * The device is open for writing, not owned, and lives longer. May be used on any thread.
 */
class TrackWriter
{
public:
    enum Format
    {
        Gpx,     ///< GPX 1.1: a track with a segment for each uninterrupted stretch
        Csv,     ///< a table with a row for each sample
        GeoJson, ///< RFC 7946: one feature, with the times and speeds in its properties
        Json     ///< all that the recordings hold
    };

    /** The format of this name, which is also the suffix of its files; case does not matter. */
    static std::optional<Format> formatNamed(const QString &name);
    static QString nameOf(Format format);
    /** Never null. */
    static std::unique_ptr<TrackWriter> create(Format format, QIODevice *device,
                                               const TrackOptions &options);

    virtual ~TrackWriter() = default;

    /** @param title what people call the whole. */
    virtual void begin(const QString &title) = 0;
    virtual void write(const Drive &drive) = 0;
    /** Returns whether the device has taken all of it. */
    bool finish();

protected:
    TrackWriter(QIODevice *device, const TrackOptions &options) : mOut(device), mOptions(options) {}

    virtual void end() = 0;

    TextOutput &out() { return mOut; }
    const TrackOptions &options() const { return mOptions; }

private:
    TextOutput mOut;
    TrackOptions mOptions;
};
