// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "democountry.h"
#include "demodrive.h"

#include <QImage>

class QPainter;

/**
 * What a camera in the car of the demo drive sees, with the values of the current second written
 * into the picture. The drive and the country must outlive the scene. Needs a QGuiApplication, for
 * its fonts.
 */
class DemoScene
{
public:
    enum class Camera
    {
        Front,
        Rear
    };

    DemoScene(const DemoDrive &drive, const DemoCountry &country, Camera camera, const QSize &size);

    /** The picture of a frame, counted from 0; it is painted over by the next call. The values are
     *  those of the sample at the start of the frame's second. Above them a bar grows from left to
     *  right within the second, empty in its first frame. */
    const QImage &paint(int frame, int framesPerSecond);

private:
    /** A place as seen from the camera: metres to the right of it (x) and ahead of it (y). */
    using ViewPoint = QPointF;

    QColor tinted(const QColor &colour) const;
    QColor hazed(const QColor &colour, double depth) const;

    void moveCamera(double seconds);
    ViewPoint toView(const QPointF &plan) const;
    QPointF toPicture(const ViewPoint &point, double height) const;
    QPolygonF visiblePart(const QPolygonF &plan) const;

    void paintSky(QPainter &painter) const;
    void paintGround(QPainter &painter) const;
    void paintThings(QPainter &painter) const;
    void paintThing(QPainter &painter, const RoadsideThing &thing, const ViewPoint &foot) const;
    void paintPost(QPainter &painter, const ViewPoint &foot) const;
    void paintBroadTree(QPainter &painter, const RoadsideThing &tree, const ViewPoint &foot) const;
    void paintConifer(QPainter &painter, const RoadsideThing &tree, const ViewPoint &foot) const;
    void paintStopSign(QPainter &painter, const RoadsideThing &sign, const ViewPoint &foot) const;
    void paintBoard(QPainter &painter, const RoadsideThing &board) const;

    void writeValues(int second);
    void writeHeadline(QPainter &painter, const DriveSample &sample) const;
    void paintProgress(QPainter &painter, double share) const;

    const DemoDrive &mDrive;
    const DemoCountry &mCountry;
    const Camera mCamera;
    const double mScale;       ///< pixels of a unit of the drawing, which is 720 units high
    const double mWidth;       ///< of the drawing
    const double mFocalLength; ///< in units of the drawing
    QImage mPanorama;
    QImage mValues;
    int mValuesSecond = -1;
    QImage mPicture;
    QPointF mEye;
    double mSine = 0.0; ///< of the heading of the camera
    double mCosine = 1.0;
    double mHeadingDeg = 0.0;
};
