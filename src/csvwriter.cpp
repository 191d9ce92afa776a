// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "csvwriter.h"

#include "drive.h"
#include "fix.h"
#include "sampletime.h"

#include <QFileInfo>

#include <cmath>

void CsvWriter::begin(const QString &)
{
    const bool inMiles = options().speedUnit == TrackOptions::MilesPerHour;
    out() << "recording,sample,local_time,";
    if (options().utcOffsetS)
        out() << "utc_time,";
    out() << "fix,latitude,longitude," << (inMiles ? "speed_mph" : "speed_kmh")
          << ",course,x_g,y_g,z_g\r\n";
}

void CsvWriter::write(const Drive &drive)
{
    const QByteArray recording = csvField(QFileInfo(drive.fileName).fileName());
    for (const GpsData &sample : drive.samples) {
        out() << recording << "," << sample.id << ",";
        writeTimes(sample);
        out() << (hasFix(sample) ? "1," : "0,");
        if (hasPosition(sample))
            out().fixed(sample.latitude, PositionDecimals);
        out() << ",";
        if (hasPosition(sample))
            out().fixed(sample.longitude, PositionDecimals);
        out() << ",";
        writeSpeed(sample.speed);
        out() << ",";
        if (hasFix(sample) && std::isfinite(sample.direction))
            out().fixed(sample.direction, CourseDecimals);
        for (const float acceleration : {sample.gsensorX, sample.gsensorY, sample.gsensorZ})
            (out() << ",").fixed(double(acceleration), AccelerationDecimals);
        out() << "\r\n";
    }
}

void CsvWriter::writeTimes(const GpsData &sample)
{
    const std::optional<qint64> localS = SampleTime::localSeconds(sample);
    if (localS)
        out() << SampleTime::isoText(*localS);
    out() << ",";
    if (!options().utcOffsetS)
        return;
    if (localS)
        out() << SampleTime::utcText(*localS, *options().utcOffsetS);
    out() << ",";
}

void CsvWriter::writeSpeed(int speedKmh)
{
    if (options().speedUnit == TrackOptions::MilesPerHour)
        out().fixed(milesPerHour(speedKmh), SpeedDecimals);
    else
        out() << speedKmh;
}
