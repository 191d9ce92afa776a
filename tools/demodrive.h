// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QPointF>
#include <QVector>

/** A place on a road: metres east (x) and north (y) of the start of the drive, and the way on. */
struct RoadPoint
{
    QPointF plan;
    double headingDeg = 0.0; ///< clockwise from north, not normalised

    RoadPoint ahead(double metres) const;
    QPointF toTheRight(double metres) const;
};

/** What the camera of the drive measures at the start of a whole second. */
struct DriveSample
{
    QDateTime localTime;
    double latitudeDeg = 0.0;
    double longitudeDeg = 0.0;
    int speedKmh = 0;
    double courseDeg = 0.0; ///< 0 to 360, made good in the second before; held at standstill
    double rightG = 0.0;    ///< acceleration to the right
    double forwardG = 0.0;  ///< acceleration forwards
    double upG = 0.0;       ///< gravity and the unevenness of the road
};

/**
 * The simulated drive of the demo: off from standstill, through bends to a junction, a stop, right
 * into the crossing road and on to 110 km/h, all within the first 60 seconds; at that speed ever
 * after.
 *
 * A pure function of the time since the start. All values agree: the distance is the integral of
 * the speed, the position that of distance and heading, and the accelerations follow from both.
 * The road exists before and behind the drive, straight on at either end.
 */
class DemoDrive
{
public:
    DemoDrive();

    DriveSample sampleAt(int second) const;
    double speedAt(double seconds) const;    ///< metres a second
    double distanceAt(double seconds) const; ///< metres from the start

    /** The lane driven, @p metres from the start. */
    RoadPoint laneAt(double metres) const;
    /** The lane of the first road, which goes straight on where the drive turns off. */
    RoadPoint firstRoadAt(double metres) const;
    /** The lane of the crossing road, which comes straight from the left of the junction. */
    RoadPoint crossingRoadAt(double metres) const;

    static double turnStart(); ///< distance at which the drive leaves the first road
    static double turnEnd();   ///< distance from which it is on the crossing road

private:
    double courseAt(int second) const;
    double accelerationAt(double seconds) const;

    QVector<QPointF> mPlan; ///< at every step of the distance
};
