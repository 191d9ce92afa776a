// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "gpxwriter.h"

#include "drive.h"
#include "sampletime.h"
#include "tracksegments.h"

#include <cmath>

namespace {

const char Head[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<gpx version="1.1" creator="Talvor Player" xmlns="http://www.topografix.com/GPX/1/1" xmlns:gpxtpx="http://www.garmin.com/xmlschemas/TrackPointExtension/v2" xmlns:talvor="urn:quellfern:talvor:sample:1">
 <trk>
  <name>)";

/** The format counts longitudes from -180 to less than 180. */
double gpxLongitude(double longitude)
{
    return longitude < 180.0 ? longitude : -180.0;
}

} // namespace

void GpxWriter::begin(const QString &title)
{
    out() << Head << xmlText(title) << "</name>\n";
}

void GpxWriter::write(const Drive &drive)
{
    const QVector<SegmentRange> segments = trackSegments(drive.samples);
    for (const SegmentRange &segment : segments) {
        out() << "  <trkseg>\n";
        for (int i = segment.first; i <= segment.last; ++i)
            writePoint(drive.samples.at(i));
        out() << "  </trkseg>\n";
    }
}

void GpxWriter::end()
{
    out() << " </trk>\n</gpx>\n";
}

void GpxWriter::writePoint(const GpsData &sample)
{
    out() << "   <trkpt lat=\"";
    out().fixed(sample.latitude, PositionDecimals) << "\" lon=\"";
    out().fixed(gpxLongitude(sample.longitude), PositionDecimals) << "\">";
    const std::optional<qint64> localS = SampleTime::localSeconds(sample);
    if (localS && options().utcOffsetS)
        out() << "<time>" << SampleTime::utcText(*localS, *options().utcOffsetS) << "</time>";
    out() << "<extensions><gpxtpx:TrackPointExtension><gpxtpx:speed>";
    out().fixed(metresPerSecond(sample.speed), SpeedDecimals) << "</gpxtpx:speed>";
    if (std::isfinite(sample.direction))
        (out() << "<gpxtpx:course>").fixed(sample.direction, CourseDecimals) << "</gpxtpx:course>";
    out() << "</gpxtpx:TrackPointExtension><talvor:sample>";
    if (localS && !options().utcOffsetS)
        out() << "<talvor:localTime>" << SampleTime::isoText(*localS) << "</talvor:localTime>";
    (out() << "<talvor:x>").fixed(double(sample.gsensorX), AccelerationDecimals) << "</talvor:x>";
    (out() << "<talvor:y>").fixed(double(sample.gsensorY), AccelerationDecimals) << "</talvor:y>";
    (out() << "<talvor:z>").fixed(double(sample.gsensorZ), AccelerationDecimals) << "</talvor:z>";
    out() << "</talvor:sample></extensions></trkpt>\n";
}
