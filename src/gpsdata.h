// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMetaType>

/**
 * One telemetry sample as the camera measured it. A plain value: it crosses threads by copy and
 * owns no memory. A field that the sample does not carry is zero or an empty string.
 */
struct GpsData
{
    int id = 0;             ///< index of the sample in its recording, from 0
    char time[15] = {};     ///< local date and time "yyyyMMddhhmmss", NUL-terminated
    char mark1 = 0;         ///< copied from the sample, not interpreted
    char time2[15] = {};    ///< 14 characters copied from the sample, NUL-terminated
    char mark2 = 0;         ///< copied from the sample, not interpreted
    char latitudeRef = 0;   ///< 'N' or 'S'
    double latitude = 0.0;  ///< degrees, negative in the south
    char longitudeRef = 0;  ///< 'E' or 'W'
    double longitude = 0.0; ///< degrees, negative in the west
    int extraValue = 0;     ///< a five-digit number, shown nowhere
    int speed = 0;          ///< over ground, km/h
    float gsensorX = 0.0f;  ///< g
    float gsensorY = 0.0f;  ///< g
    float gsensorZ = 0.0f;  ///< g
    double direction = 0.0; ///< course made good, degrees clockwise from north
};

Q_DECLARE_METATYPE(GpsData)
