// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "geojsonwriter.h"

#include "drive.h"
#include "sampletime.h"
#include "tracksegments.h"

#include <cmath>

namespace {

constexpr double HalfTurnDeg = 180.0;

/** Whether the way from one to the next, taken the short way round, crosses the 180th meridian. */
bool crossesDateLine(const GpsData &from, const GpsData &to)
{
    return std::fabs(to.longitude - from.longitude) > HalfTurnDeg;
}

} // namespace

void GeoJsonWriter::begin(const QString &title)
{
    mTitle = title;
}

void GeoJsonWriter::write(const Drive &drive)
{
    const QVector<SegmentRange> segments = trackSegments(drive.samples);
    for (const SegmentRange &segment : segments) {
        int first = segment.first;
        for (int i = first + 1; i <= segment.last; ++i) {
            if (!crossesDateLine(drive.samples.at(i - 1), drive.samples.at(i)))
                continue;
            addLine(drive.samples, first, i - 1);
            first = i;
        }
        addLine(drive.samples, first, segment.last);
    }
}

void GeoJsonWriter::end()
{
    const bool isMulti = mLineCount > 1;
    const char *const open = isMulti ? "[[" : "[";
    const char *const close = isMulti ? "]]" : "]";
    out() << "{\"type\":\"Feature\",\"geometry\":";
    if (mLineCount == 0)
        out() << "null";
    else
        out() << "{\"type\":\"" << (isMulti ? "MultiLineString" : "LineString")
              << "\",\"coordinates\":" << open << mCoordinates << close << "}";
    const bool inMiles = options().speedUnit == TrackOptions::MilesPerHour;
    out() << ",\"properties\":{\"name\":" << jsonText(mTitle) << ",\"times\":" << open << mTimes
          << close << ",\"speeds\":" << open << mSpeeds << close << ",\"speed_unit\":\""
          << (inMiles ? "mph" : "km/h") << "\"}}\n";
}

void GeoJsonWriter::addLine(const QVector<GpsData> &samples, int first, int last)
{
    if (mLineCount++ > 0) {
        for (QByteArray *list : {&mCoordinates, &mTimes, &mSpeeds})
            list->append("],[");
    }
    const int end = std::max(last, first + 1);
    for (int i = first; i <= end; ++i) {
        if (i > first) {
            for (QByteArray *list : {&mCoordinates, &mTimes, &mSpeeds})
                list->append(',');
        }
        addPoint(samples.at(std::min(i, last)));
    }
}

void GeoJsonWriter::addPoint(const GpsData &sample)
{
    mCoordinates.append('[');
    appendFixed(mCoordinates, sample.longitude, PositionDecimals);
    mCoordinates.append(',');
    appendFixed(mCoordinates, sample.latitude, PositionDecimals);
    mCoordinates.append(']');

    const std::optional<qint64> localS = SampleTime::localSeconds(sample);
    if (!localS)
        mTimes.append("null");
    else if (options().utcOffsetS)
        mTimes.append('"' + SampleTime::utcText(*localS, *options().utcOffsetS) + '"');
    else
        mTimes.append('"' + SampleTime::isoText(*localS) + '"');

    if (options().speedUnit == TrackOptions::MilesPerHour)
        appendFixed(mSpeeds, milesPerHour(sample.speed), SpeedDecimals);
    else
        appendFixed(mSpeeds, sample.speed, 0);
}
