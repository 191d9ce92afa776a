// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "coordinateconv.h"

#include <QDebug>

#include <cmath>

namespace {

constexpr double DegToRad = 0.017453292519943295;
constexpr double RadToDeg = 57.29577951308232;
constexpr double KmPerNauticalMile = 1.852;
constexpr double MinutesPerDegree = 60.0;
constexpr double MeridionalPartsFactor = 7915.70447;
constexpr double MidLatitudeThresholdDeg = 5.0;

/** Difference of the meridional parts of two latitudes, in minutes of arc. */
double meridionalPartsBetween(double lat1, double lat2)
{
    const double log1 = std::log10(std::tan((lat1 * 0.5 + 45.0) * DegToRad));
    const double log2 = std::log10(std::tan((lat2 * 0.5 + 45.0) * DegToRad));
    return (log2 - log1) * MeridionalPartsFactor;
}

/** Brings a finite angle into [0, 360]. */
double normalized(double angle)
{
    if (angle < 0) {
        qDebug() << "航向/方位角为负值，请转化成[0 360]之间";
        const double whole = std::trunc(angle);
        angle = (angle - whole) + (std::fmod(whole, 360.0) + 360.0);
    }
    if (angle > 360) {
        qDebug() << "航向/方位角为大于360，请转化成[0 360]之间";
        const double whole = std::trunc(angle);
        angle = (angle - whole) + std::fmod(whole, 360.0);
    }
    return angle;
}

/** An assertion that holds in release builds too. */
void require(bool holds, const char *condition, int line)
{
    if (!holds)
        qt_assert(condition, "src/coordinateconv", line);
}

} // namespace

bool CoordinateConv::IsNearRightAngle(double angle)
{
    if (!std::isfinite(angle))
        return false;
    const int whole = int(normalized(angle));
    return unsigned(whole - 81 - (whole / 180) * 180) < 19;
}

void CoordinateConv::StartLatLonCSToEndLatLon(double beginLat, double beginLong, double orient,
                                              double dist, double &endLat, double &endLong)
{
    const double dBeginLat = beginLat;
    const double dBeginLong = beginLong;
    const double dOrient = orient;
    const double dDist = dist;
    require(dBeginLat >= 0 && dBeginLat <= 90, "dBeginLat>=0 && dBeginLat <= 90", __LINE__);
    require(dBeginLong >= 0 && dBeginLong <= 180, "dBeginLong>=0 && dBeginLong <= 180", __LINE__);
    require(dOrient >= 0 && dOrient <= 360, "dOrient>=0 && dOrient <= 360", __LINE__);
    require(dDist >= 0, "dDist>=0", __LINE__);

    endLat = std::cos(orient * DegToRad) * (dist / KmPerNauticalMile) / MinutesPerDegree + beginLat;
    endLong =
        std::tan(orient * DegToRad) * meridionalPartsBetween(beginLat, endLat) / MinutesPerDegree +
        beginLong;
}

void CoordinateConv::LongLatToXY(double lon1, double lat1, double lon2, double lat2, double &course,
                                 double &dist)
{
    const double dmp = meridionalPartsBetween(lat1, lat2);
    const double dlo = (lon2 - lon1) * MinutesPerDegree;
    const double acute = std::fabs(std::atan(dlo / dmp)) * RadToDeg;
    if (lon1 <= lon2)
        course = lat1 <= lat2 ? acute : 180.0 - acute;
    else
        course = lat2 < lat1 ? acute + 180.0 : 360.0 - acute;
    if (std::isnan(course)) {
        dist = course;
        return;
    }
    course = normalized(course);

    const double dlat = lat2 - lat1;
    if (!IsNearRightAngle(course)) {
        dist = dlat * MinutesPerDegree / std::cos(course * DegToRad) * KmPerNauticalMile;
        return;
    }
    const double departure = std::fabs(dlat) >= MidLatitudeThresholdDeg
                                 ? dlo * std::cos(std::acos(dlat * MinutesPerDegree / dmp))
                                 : dlo * std::cos((lat1 + lat2) * 0.5 * DegToRad);
    dist = departure / std::sin(course * DegToRad) * KmPerNauticalMile;
}
