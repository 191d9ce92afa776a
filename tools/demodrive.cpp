// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demodrive.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {
constexpr double StartLatitude = 47.97;
constexpr double StartLongitude = 12.24;
// The course from latitude 0, longitude 0 to the start. The player takes that for the direction of
// a recording's first sample, so that its compass agrees with the picture from the start.
constexpr double StartHeading = 12.5877;
constexpr double MetresPerDegree = 111195.0;
constexpr double Gravity = 9.81;
constexpr double PlanStep = 0.25;
constexpr int PlanLength = 1100;

struct SpeedMark
{
    double second;
    double kmh;
};

// Between two marks the speed goes from one to the other without a jerk.
constexpr SpeedMark SpeedMarks[] = {{0, 0},  {3, 0},   {12, 64}, {18, 68},  {22, 78},  {31, 0},
                                    {34, 0}, {38, 18}, {42, 20}, {56, 110}, {1e6, 110}};

struct Bend
{
    double start;  ///< metres
    double length; ///< metres
    double turnDeg;
};

constexpr Bend Bends[] = {{66, 98, -26},   {167, 160, 42}, {371, 20, 90},
                          {450, 110, -16}, {570, 200, 28}, {790, 220, -30}};
constexpr Bend Turn = Bends[2];

double smoothStep(double u)
{
    return u * u * (3.0 - 2.0 * u);
}

const SpeedMark *markBefore(double seconds)
{
    const auto later = [seconds](const SpeedMark &mark) { return mark.second > seconds; };
    const auto next = std::find_if(std::begin(SpeedMarks) + 1, std::end(SpeedMarks) - 1, later);
    return next - 1;
}

/** Metres driven from a mark until @p seconds, which lie before the next mark. */
double distanceFrom(const SpeedMark *mark, double seconds)
{
    const double span = mark[1].second - mark->second;
    const double u = (seconds - mark->second) / span;
    const double gain = mark[1].kmh - mark->kmh;
    return span * (mark->kmh * u + gain * u * u * u * (1.0 - u / 2.0)) / 3.6;
}

double headingAt(double metres)
{
    double heading = StartHeading;
    for (const Bend &bend : Bends)
        heading += bend.turnDeg * smoothStep(qBound(0.0, (metres - bend.start) / bend.length, 1.0));
    return heading;
}

/** Radians a metre, positive to the right. */
double curvatureAt(double metres)
{
    return qDegreesToRadians(headingAt(metres + 0.5) - headingAt(metres - 0.5));
}
} // namespace

RoadPoint RoadPoint::ahead(double metres) const
{
    const double heading = qDegreesToRadians(headingDeg);
    return {plan + metres * QPointF(std::sin(heading), std::cos(heading)), headingDeg};
}

QPointF RoadPoint::toTheRight(double metres) const
{
    return RoadPoint{plan, headingDeg + 90.0}.ahead(metres).plan;
}

DemoDrive::DemoDrive()
{
    RoadPoint point;
    for (int step = 0; step <= PlanLength / PlanStep; ++step) {
        mPlan.append(point.plan);
        point.headingDeg = headingAt((step + 0.5) * PlanStep);
        point = point.ahead(PlanStep);
    }
}

double DemoDrive::turnStart()
{
    return Turn.start;
}

double DemoDrive::turnEnd()
{
    return Turn.start + Turn.length;
}

double DemoDrive::speedAt(double seconds) const
{
    const SpeedMark *mark = markBefore(seconds);
    const double u = (seconds - mark->second) / (mark[1].second - mark->second);
    return (mark->kmh + (mark[1].kmh - mark->kmh) * smoothStep(u)) / 3.6;
}

double DemoDrive::accelerationAt(double seconds) const
{
    constexpr double HalfSpan = 0.01;
    const double before = std::max(0.0, seconds - HalfSpan);
    return (speedAt(seconds + HalfSpan) - speedAt(before)) / (seconds + HalfSpan - before);
}

double DemoDrive::distanceAt(double seconds) const
{
    const SpeedMark *last = markBefore(seconds);
    double metres = distanceFrom(last, seconds);
    for (const SpeedMark *mark = SpeedMarks; mark != last; ++mark)
        metres += distanceFrom(mark, mark[1].second);
    return metres;
}

RoadPoint DemoDrive::laneAt(double metres) const
{
    const double inside = qBound(0.0, metres, double(PlanLength));
    const int step = std::min(int(inside / PlanStep), mPlan.size() - 2);
    const double rest = inside / PlanStep - step;
    const RoadPoint point{mPlan[step] * (1.0 - rest) + mPlan[step + 1] * rest, headingAt(inside)};
    return point.ahead(metres - inside);
}

RoadPoint DemoDrive::firstRoadAt(double metres) const
{
    const double end = std::min(metres, turnStart());
    return laneAt(end).ahead(metres - end);
}

RoadPoint DemoDrive::crossingRoadAt(double metres) const
{
    const double start = std::max(metres, turnEnd());
    return laneAt(start).ahead(metres - start);
}

double DemoDrive::courseAt(int second) const
{
    // Receivers hold the course while the vehicle hardly moves.
    constexpr double LeastMove = 1.2;
    for (; second > 0; --second) {
        const QPointF move = laneAt(distanceAt(second)).plan - laneAt(distanceAt(second - 1)).plan;
        if (std::hypot(move.x(), move.y()) > LeastMove)
            return std::fmod(qRadiansToDegrees(std::atan2(move.x(), move.y())) + 360.0, 360.0);
    }
    return StartHeading;
}

DriveSample DemoDrive::sampleAt(int second) const
{
    const double metres = distanceAt(second);
    const double speed = speedAt(second);
    const QPointF plan = laneAt(metres).plan;
    const double longitudeScale = MetresPerDegree * std::cos(qDegreesToRadians(StartLatitude));
    // As UTC, so that the drive's clock does not depend on the zone it is made in.
    const QDateTime start({2026, 3, 14}, {9, 26}, Qt::UTC);

    DriveSample sample;
    sample.localTime = start.addSecs(second);
    sample.latitudeDeg = StartLatitude + plan.y() / MetresPerDegree;
    sample.longitudeDeg = StartLongitude + plan.x() / longitudeScale;
    sample.speedKmh = qRound(speed * 3.6);
    sample.courseDeg = courseAt(second);
    sample.rightG = speed * speed * curvatureAt(metres) / Gravity;
    sample.forwardG = accelerationAt(second) / Gravity;
    sample.upG = 1.0 + 0.003 * speed * std::sin(metres * 0.37);
    return sample;
}
