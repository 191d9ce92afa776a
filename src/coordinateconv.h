// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/**
 * Rhumb-line (Mercator) sailing: course and distance between two positions, and the position
 * reached by a course and a distance.
 *
 * Positions are in decimal degrees, courses in degrees clockwise from north, distances in
 * kilometres. The formulas are the textbook ones of Mercator sailing with meridional parts on a
 * sphere (7915.70447 log10 tan(45 + lat/2)). Stateless; may be used from any thread.
 */
class CoordinateConv
{
public:
    /** Whether the course lies within 9 degrees of due east or due west (81 to 99 modulo 180). */
    bool IsNearRightAngle(double angle);

    /**
     * The end position of a leg in the north-eastern quadrant.
     *
     * @pre 0 <= beginLat <= 90, 0 <= beginLong <= 180, 0 <= orient <= 360, dist >= 0. A violated
     *      precondition stops the application, in release builds too.
     */
    void StartLatLonCSToEndLatLon(double beginLat, double beginLong, double orient, double dist,
                                  double &endLat, double &endLong);

    /**
     * Course, 0 to 360, and distance from position 1 to position 2. Positions without a defined
     * course (the same point twice, a latitude beyond a pole) give a course that is not a number.
     */
    void LongLatToXY(double lon1, double lat1, double lon2, double lat2, double &course,
                     double &dist);
};
