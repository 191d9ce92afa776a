// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackwriter.h"

#include "csvwriter.h"
#include "geojsonwriter.h"
#include "gpxwriter.h"
#include "jsonwriter.h"

#include <iterator>

namespace {

const char *const FormatNames[] = {"gpx", "csv", "geojson", "json"};

} // namespace

double metresPerSecond(double speedKmh)
{
    return speedKmh / 3.6;
}

double milesPerHour(double speedKmh)
{
    return speedKmh / 1.609344;
}

std::optional<TrackWriter::Format> TrackWriter::formatNamed(const QString &name)
{
    for (int format = 0; format < int(std::size(FormatNames)); ++format) {
        if (name.compare(QLatin1String(FormatNames[format]), Qt::CaseInsensitive) == 0)
            return Format(format);
    }
    return std::nullopt;
}

QString TrackWriter::nameOf(Format format)
{
    return QLatin1String(FormatNames[format]);
}

std::unique_ptr<TrackWriter> TrackWriter::create(Format format, QIODevice *device,
                                                 const TrackOptions &options)
{
    switch (format) {
    case Gpx:
        return std::make_unique<GpxWriter>(device, options);
    case Csv:
        return std::make_unique<CsvWriter>(device, options);
    case GeoJson:
        return std::make_unique<GeoJsonWriter>(device, options);
    case Json:
        break;
    }
    return std::make_unique<JsonWriter>(device, options);
}

bool TrackWriter::finish()
{
    end();
    return mOut.flush();
}
