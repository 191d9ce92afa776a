// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "jsonwriter.h"

#include "drive.h"
#include "fix.h"
#include "sampletime.h"

namespace {

/** A member of a camera's characters; all of them, also those that are no text. */
void writeCharacters(TextOutput &out, const char *member, const char *text, int size)
{
    out << ",\"" << member << "\":";
    const bool isPlain = std::all_of(
        text, text + size, [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
    if (isPlain) // as of all sound recordings; asking the library for it would take longest of all
        out << "\"" << QByteArray::fromRawData(text, size) << "\"";
    else
        out << jsonText(QString::fromLatin1(text, size));
}

const char *codingName(int decodeType)
{
    switch (decodeType) {
    case 1:
        return "H.264";
    case 2:
        return "H.265";
    default:
        return "";
    }
}

} // namespace

void writeFacts(TextOutput &out, const Drive &drive)
{
    out << "\"file\":" << jsonText(drive.fileName) << ",\"container\":\""
        << (drive.isAvi ? "AVI" : "MP4") << "\",\"scheme\":" << jsonText(schemeName(drive.scheme))
        << ",\"width\":" << drive.info.width << ",\"height\":" << drive.info.height
        << ",\"coding\":\"" << codingName(drive.info.decodeType)
        << "\",\"duration_s\":" << qint64(drive.info.duration) << ",\"frame_rate\":";
    out.fixed(double(drive.info.frameRate), 1) << ",\"sample_count\":" << drive.samples.size();
}

void JsonWriter::begin(const QString &)
{
    out() << "{\"recordings\":[";
}

void JsonWriter::write(const Drive &drive)
{
    out() << (mIsFirst ? "\n{" : ",\n{");
    mIsFirst = false;
    writeFacts(out(), drive);
    out() << ",\"samples\":[";
    const char *separator = "\n";
    for (const GpsData &sample : drive.samples) {
        out() << separator;
        writeSample(sample);
        separator = ",\n";
    }
    out() << "]}";
}

void JsonWriter::end()
{
    out() << "\n]}\n";
}

void JsonWriter::writeSample(const GpsData &sample)
{
    out() << "{\"id\":" << sample.id;
    writeTimes(sample);
    writeCharacters(out(), "time", sample.time, int(qstrlen(sample.time)));
    writeCharacters(out(), "mark1", &sample.mark1, 1);
    writeCharacters(out(), "time2", sample.time2, int(qstrlen(sample.time2)));
    writeCharacters(out(), "mark2", &sample.mark2, 1);
    out() << ",\"fix\":" << (hasFix(sample) ? "true" : "false");
    writeCharacters(out(), "latitude_ref", &sample.latitudeRef, 1);
    (out() << ",\"latitude\":").fixed(sample.latitude, PositionDecimals);
    writeCharacters(out(), "longitude_ref", &sample.longitudeRef, 1);
    (out() << ",\"longitude\":").fixed(sample.longitude, PositionDecimals);
    out() << ",\"extra_value\":" << sample.extraValue;
    if (options().speedUnit == TrackOptions::MilesPerHour)
        (out() << ",\"speed_mph\":").fixed(milesPerHour(sample.speed), SpeedDecimals);
    else
        out() << ",\"speed_kmh\":" << sample.speed;
    (out() << ",\"course\":").fixed(sample.direction, CourseDecimals);
    (out() << ",\"x_g\":").fixed(double(sample.gsensorX), AccelerationDecimals);
    (out() << ",\"y_g\":").fixed(double(sample.gsensorY), AccelerationDecimals);
    (out() << ",\"z_g\":").fixed(double(sample.gsensorZ), AccelerationDecimals);
    out() << "}";
}

void JsonWriter::writeTimes(const GpsData &sample)
{
    const std::optional<qint64> localS = SampleTime::localSeconds(sample);
    if (localS)
        out() << ",\"local_time\":\"" << SampleTime::isoText(*localS) << "\"";
    if (localS && options().utcOffsetS)
        out() << ",\"utc_time\":\"" << SampleTime::utcText(*localS, *options().utcOffsetS) << "\"";
}
