// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demodrive.h"

#include <QColor>
#include <QPolygonF>
#include <QVector>

/** A number from 0 to 1, always the same for the same arguments, without a visible pattern. */
double demoNoise(int a, int b);

/** @p a and @p b mixed; a @p share of 0 is all @p a, 1 all @p b. */
QColor mixedColour(const QColor &a, const QColor &b, double share);

/** A piece of ground of one colour. */
struct GroundPatch
{
    QPolygonF outline; ///< metres east and north of the start of the drive
    QColor colour;
    bool isSmooth = true; ///< edges are worth smoothing, which costs most of the painting time
};

/** Something that stands beside a road. */
struct RoadsideThing
{
    enum class Kind
    {
        Post,
        BroadTree,
        Conifer,
        StopSign,
        ChevronBoard
    };

    Kind kind = Kind::Post;
    RoadPoint place;     ///< signs face traffic of this heading
    double height = 0.0; ///< metres
    double shade = 0.0;  ///< 0 to 1, makes trees differ
};

/** The country of the demo drive: fields, two roads with their marks and posts, trees and signs. */
class DemoCountry
{
public:
    explicit DemoCountry(const DemoDrive &drive);

    /** In painting order: later patches lie upon earlier ones. */
    const QVector<GroundPatch> &ground() const { return mGround; }
    const QVector<RoadsideThing> &things() const { return mThings; }

private:
    using Road = RoadPoint (DemoDrive::*)(double) const;
    struct Stretch
    {
        Road road;
        double from; ///< metres of the drive
        double to;
    };
    /** A line along a road: its edges in metres to the right of the driven line. Pieces of the
     *  given length begin at every period; pieces longer than the period make it unbroken. */
    struct Line
    {
        double left;
        double right;
        QColor colour;
        double period = 8.0;
        double piece = 8.4;
    };

    void layFields();
    void layRoads();
    void layMarks();
    void lay(const Stretch &stretch, const Line &line);
    void placePosts(const Stretch &stretch);
    void placeTrees(const Stretch &stretch);
    void placeSigns();
    bool isClearOfRoads(const QPointF &plan) const;

    const DemoDrive &mDrive;
    QVector<GroundPatch> mGround;
    QVector<RoadsideThing> mThings;
};
