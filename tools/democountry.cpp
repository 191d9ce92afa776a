// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "democountry.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double RoadLeft = -5.25; ///< the driven line is the middle of the right lane
constexpr double RoadMiddle = -1.75;
constexpr double RoadRight = 1.75;
constexpr double MarkWidth = 0.15;
constexpr double Reach = 450.0; ///< of the roads beyond the drive
constexpr double DriveEnd = 800.0;

const QColor Verge(146, 148, 108);
const QColor Asphalt(86, 90, 96);
const QColor Paint(240, 240, 234);
const QColor FieldColours[] = {{116, 146, 80}, {132, 158, 88}, {104, 136, 78}, {150, 138, 98}};

double turnStart()
{
    return DemoDrive::turnStart();
}
double turnEnd()
{
    return DemoDrive::turnEnd();
}
} // namespace

double demoNoise(int a, int b)
{
    quint32 n = quint32(a) * 374761393u + quint32(b) * 668265263u;
    n = (n ^ (n >> 13)) * 1274126177u;
    n = (n ^ (n >> 15)) * 2246822519u;
    return ((n ^ (n >> 16)) >> 8) / double(1 << 24);
}

QColor mixedColour(const QColor &a, const QColor &b, double share)
{
    const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

DemoCountry::DemoCountry(const DemoDrive &drive) : mDrive(drive)
{
    layFields();
    layRoads();
    layMarks();
    placePosts({&DemoDrive::firstRoadAt, -Reach, turnStart() - 10.0});
    placePosts({&DemoDrive::crossingRoadAt, turnEnd() - Reach, turnEnd() - 35.0});
    placePosts({&DemoDrive::crossingRoadAt, turnEnd() + 10.0, DriveEnd + Reach});
    placeTrees({&DemoDrive::firstRoadAt, -Reach, turnStart() + Reach});
    placeTrees({&DemoDrive::crossingRoadAt, turnEnd() - Reach, DriveEnd + Reach});
    placeSigns();
}

void DemoCountry::layFields()
{
    constexpr int Width = 70;
    constexpr int Depth = 45;
    for (int east = -700; east < 1100; east += Width) {
        for (int north = -500; north < 900; north += Depth) {
            const double choice = demoNoise(east, north) * std::size(FieldColours);
            const QRectF field(east, north, Width, Depth);
            mGround.append({QPolygonF(field), FieldColours[int(choice)], false});
        }
    }
}

void DemoCountry::layRoads()
{
    const Stretch first{&DemoDrive::firstRoadAt, -Reach, turnStart() + 13.0};
    const Stretch turn{&DemoDrive::laneAt, turnStart(), turnEnd()};
    const Stretch crossing{&DemoDrive::crossingRoadAt, turnEnd() - Reach, DriveEnd + Reach};
    const Line verge{RoadLeft - 1.4, RoadRight + 1.4, Verge};
    const Line asphalt{RoadLeft, RoadRight, Asphalt};

    lay(first, verge);
    lay(crossing, verge);
    lay(turn, {RoadMiddle, RoadRight + 0.8, Verge, 1.0, 1.3});
    lay(first, asphalt);
    lay(crossing, asphalt);
    lay(turn, {RoadMiddle, RoadRight, Asphalt, 1.0, 1.3});
}

void DemoCountry::layMarks()
{
    const Line leftEdge{RoadLeft + 0.2, RoadLeft + 0.2 + MarkWidth, Paint};
    const Line rightEdge{RoadRight - 0.2 - MarkWidth, RoadRight - 0.2, Paint};
    const Line solid{RoadMiddle - MarkWidth / 2, RoadMiddle + MarkWidth / 2, Paint};
    Line dashed = solid;
    dashed.period = 12.0;
    dashed.piece = 4.0;

    const double mouth = turnStart() + 3.0;
    const Stretch approach{&DemoDrive::firstRoadAt, -Reach, mouth};
    const Stretch crossing{&DemoDrive::crossingRoadAt, turnEnd() - Reach, DriveEnd + Reach};
    lay(approach, leftEdge);
    lay(approach, rightEdge);
    lay({approach.road, approach.from, mouth - 32.0}, dashed);
    lay({approach.road, mouth - 30.0, mouth}, solid);
    lay({approach.road, mouth, mouth + 0.5}, {RoadMiddle, RoadRight, Paint, 1.0, 0.5});

    lay(crossing, leftEdge);
    lay(crossing, dashed);
    lay({crossing.road, crossing.from, turnEnd() - 22.0}, rightEdge);
    lay({crossing.road, turnEnd(), crossing.to}, rightEdge);
}

void DemoCountry::lay(const Stretch &stretch, const Line &line)
{
    for (double metres = stretch.from; metres < stretch.to; metres += line.period) {
        const RoadPoint begin = (mDrive.*stretch.road)(metres);
        const RoadPoint end = (mDrive.*stretch.road)(std::min(metres + line.piece, stretch.to));
        const QPolygonF outline({begin.toTheRight(line.left), begin.toTheRight(line.right),
                                 end.toTheRight(line.right), end.toTheRight(line.left)});
        mGround.append({outline, line.colour});
    }
}

void DemoCountry::placePosts(const Stretch &stretch)
{
    for (double metres = stretch.from; metres < stretch.to; metres += 25.0) {
        RoadPoint place = (mDrive.*stretch.road)(metres);
        const QPointF right = place.toTheRight(RoadRight + 0.9);
        place.plan = place.toTheRight(RoadLeft - 0.9);
        mThings.append({RoadsideThing::Kind::Post, place, 1.0, 0.0});
        mThings.append({RoadsideThing::Kind::Post, {right, place.headingDeg}, 1.0, 0.0});
    }
}

void DemoCountry::placeTrees(const Stretch &stretch)
{
    for (int metres = int(stretch.from); metres < stretch.to; metres += 9) {
        const double luck = demoNoise(metres, 1);
        const double offset = 9.0 + 55.0 * std::pow(demoNoise(metres, 2), 2.0);
        RoadPoint place = (mDrive.*stretch.road)(metres);
        place.plan = place.toTheRight(luck < 0.5 ? RoadLeft - offset : RoadRight + offset);
        const auto kind = demoNoise(metres / 60, 3) < 0.5 ? RoadsideThing::Kind::Conifer
                                                          : RoadsideThing::Kind::BroadTree;
        const double height = 5.0 + 5.0 * demoNoise(metres, 4);
        if (std::fabs(luck - 0.5) > 0.12 && isClearOfRoads(place.plan))
            mThings.append({kind, place, height, demoNoise(metres, 5)});
    }
}

void DemoCountry::placeSigns()
{
    const RoadPoint mouth = mDrive.firstRoadAt(turnStart() + 3.0);
    const QPointF besideMouth = mouth.toTheRight(RoadRight + 1.4);
    mThings.append({RoadsideThing::Kind::StopSign, {besideMouth, mouth.headingDeg}, 2.5, 0.0});

    RoadPoint opposite = mDrive.firstRoadAt(turnStart() + 23.0);
    opposite.plan = opposite.toTheRight(RoadMiddle);
    mThings.append({RoadsideThing::Kind::ChevronBoard, opposite, 1.6, 0.0});
}

bool DemoCountry::isClearOfRoads(const QPointF &plan) const
{
    constexpr double Clearance = 10.0;
    const auto isNear = [plan](const RoadPoint &point) {
        const QPointF away = plan - point.toTheRight(RoadMiddle);
        return std::hypot(away.x(), away.y()) < Clearance;
    };
    for (double metres = -Reach; metres < DriveEnd + Reach; metres += 4.0) {
        if (metres < turnStart() + 24.0 && isNear(mDrive.firstRoadAt(metres)))
            return false;
        if (metres > turnEnd() - Reach && isNear(mDrive.crossingRoadAt(metres)))
            return false;
    }
    return true;
}
