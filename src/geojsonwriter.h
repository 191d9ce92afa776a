// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "trackwriter.h"

#include <QByteArray>
#include <QVector>

/**
 * GeoJSON (RFC 7946): one feature, a line string or, of several stretches, a multi line string.
 * A line that crosses the 180th meridian is cut there. A stretch of a single sample is a line
 * from its position to itself, as a line has two positions at least. Drives without any position
 * are a feature without geometry.
 *
 * The properties have a list of times and one of speeds, with an item for each position, and nested
 * as the positions are. Times are in UTC if the offset is known, else local and without a zone.
 */
class GeoJsonWriter : public TrackWriter
{
public:
    GeoJsonWriter(QIODevice *device, const TrackOptions &options) : TrackWriter(device, options) {}

    void begin(const QString &title) override;
    void write(const Drive &drive) override;

protected:
    void end() override;

private:
    void addLine(const QVector<GpsData> &samples, int first, int last);
    void addPoint(const GpsData &sample);

    // What goes between the outermost brackets: whether there are several lines, and so one more
    // pair of them, is known at the end only.
    QByteArray mCoordinates;
    QByteArray mTimes;
    QByteArray mSpeeds;
    int mLineCount = 0;
    QString mTitle;
};
