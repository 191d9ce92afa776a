// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demoscene.h"

#include "demopanorama.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {
// Units of the drawing.
constexpr double DrawingHeight = 720.0;
constexpr double Horizon = 330.0;
constexpr double ValuesTop = 606.0;
constexpr double ProgressHeight = 12.0;
constexpr double HalfViewDeg = 36.0;

// Metres.
constexpr double EyeHeight = 1.6;
constexpr double NearDepth = 2.5;
constexpr double FarDepth = 450.0;
constexpr double HazeDepth = 280.0;

const QColor Haze(184, 202, 196);
const QColor Ground(122, 146, 86);
const QColor EveningTint(255, 176, 96);
const QColor SignRed(196, 34, 38);
const QColor SignBack(150, 154, 158);
const QColor White(246, 246, 242);
const QColor Trunk(98, 78, 60);

QPainterPath octagon(const QPointF &middle, double radius)
{
    QPolygonF corners;
    for (int corner = 0; corner < 9; ++corner) {
        const double angle = qDegreesToRadians(22.5 + 45.0 * corner);
        corners.append(middle + radius * QPointF(std::cos(angle), std::sin(angle)));
    }
    QPainterPath path;
    path.addPolygon(corners);
    return path;
}

QFont boldFont(int size)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setBold(true);
    font.setPixelSize(size);
    return font;
}
} // namespace

DemoScene::DemoScene(const DemoDrive &drive, const DemoCountry &country, Camera camera,
                     const QSize &size)
    : mDrive(drive)
    , mCountry(country)
    , mCamera(camera)
    , mScale(size.height() / DrawingHeight)
    , mWidth(size.width() / mScale)
    , mFocalLength(mWidth / 2.0 / std::tan(qDegreesToRadians(HalfViewDeg)))
    , mValues(size, QImage::Format_ARGB32_Premultiplied)
    , mPicture(size, QImage::Format_RGB32)
{
    const double onceRound = size.width() * 360.0 / (2.0 * HalfViewDeg);
    mPanorama = paintedPanorama({qRound(onceRound), qCeil(Horizon * mScale)});
    if (mCamera == Camera::Rear) {
        QPainter painter(&mPanorama);
        painter.setOpacity(0.22);
        painter.fillRect(mPanorama.rect(), EveningTint);
    }
}

const QImage &DemoScene::paint(int frame, int framesPerSecond)
{
    const int second = frame / framesPerSecond;
    if (second != mValuesSecond)
        writeValues(second);
    moveCamera(double(frame) / framesPerSecond);

    QPainter painter(&mPicture);
    painter.setPen(Qt::NoPen);
    paintSky(painter);
    painter.scale(mScale, mScale);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    paintThings(painter);
    painter.resetTransform();
    painter.drawImage(0, 0, mValues);
    painter.scale(mScale, mScale);
    paintProgress(painter, double(frame % framesPerSecond) / framesPerSecond);
    return mPicture;
}

QColor DemoScene::tinted(const QColor &colour) const
{
    return mCamera == Camera::Rear ? mixedColour(colour, EveningTint, 0.22) : colour;
}

QColor DemoScene::hazed(const QColor &colour, double depth) const
{
    return tinted(mixedColour(Haze, colour, std::exp(-depth / HazeDepth)));
}

void DemoScene::moveCamera(double seconds)
{
    const RoadPoint lane = mDrive.laneAt(mDrive.distanceAt(seconds));
    mEye = lane.plan;
    mHeadingDeg = lane.headingDeg + (mCamera == Camera::Rear ? 180.0 : 0.0);
    mSine = std::sin(qDegreesToRadians(mHeadingDeg));
    mCosine = std::cos(qDegreesToRadians(mHeadingDeg));
}

DemoScene::ViewPoint DemoScene::toView(const QPointF &plan) const
{
    const QPointF away = plan - mEye;
    return {away.x() * mCosine - away.y() * mSine, away.x() * mSine + away.y() * mCosine};
}

QPointF DemoScene::toPicture(const ViewPoint &point, double height) const
{
    const double scale = mFocalLength / point.y();
    return {mWidth / 2.0 + point.x() * scale, Horizon + (EyeHeight - height) * scale};
}

QPolygonF DemoScene::visiblePart(const QPolygonF &plan) const
{
    QPolygonF visible;
    ViewPoint last = toView(plan.last());
    for (const QPointF &corner : plan) {
        const ViewPoint point = toView(corner);
        if ((point.y() < NearDepth) != (last.y() < NearDepth)) {
            const double share = (NearDepth - last.y()) / (point.y() - last.y());
            visible.append(toPicture(last + (point - last) * share, 0.0));
        }
        if (point.y() >= NearDepth)
            visible.append(toPicture(point, 0.0));
        last = point;
    }
    return visible;
}

void DemoScene::paintSky(QPainter &painter) const
{
    const int round = mPanorama.width();
    const double middle = mHeadingDeg / 360.0 * round;
    const int left = ((qRound(middle) - mPicture.width() / 2) % round + round) % round;
    painter.drawImage(-left, 0, mPanorama);
    if (left + mPicture.width() > round)
        painter.drawImage(round - left, 0, mPanorama);
}

void DemoScene::paintGround(QPainter &painter) const
{
    QLinearGradient base(0, Horizon, 0, DrawingHeight);
    base.setColorAt(0, tinted(Haze));
    base.setColorAt(0.12, tinted(Ground));
    painter.fillRect(QRectF(0, Horizon, mWidth, DrawingHeight - Horizon), base);

    for (const GroundPatch &patch : mCountry.ground()) {
        const ViewPoint middle = toView((patch.outline[0] + patch.outline[2]) / 2.0);
        if (middle.y() < -60.0 || middle.y() > FarDepth)
            continue;
        const QPolygonF outline = visiblePart(patch.outline);
        if (!outline.boundingRect().intersects({0, Horizon, mWidth, ValuesTop - Horizon}))
            continue;
        painter.setBrush(hazed(patch.colour, std::max(0.0, middle.y())));
        painter.setRenderHint(QPainter::Antialiasing, patch.isSmooth);
        painter.drawPolygon(outline);
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

void DemoScene::paintThings(QPainter &painter) const
{
    struct Seen
    {
        ViewPoint foot;
        const RoadsideThing *thing;
    };
    QVector<Seen> seen;
    for (const RoadsideThing &thing : mCountry.things()) {
        const ViewPoint foot = toView(thing.place.plan);
        if (foot.y() > NearDepth && foot.y() < FarDepth && std::fabs(foot.x()) < foot.y() + 6.0)
            seen.append({foot, &thing});
    }
    const auto isFarther = [](const Seen &a, const Seen &b) { return a.foot.y() > b.foot.y(); };
    std::sort(seen.begin(), seen.end(), isFarther);
    for (const Seen &one : seen)
        paintThing(painter, *one.thing, one.foot);
}

void DemoScene::paintThing(QPainter &painter, const RoadsideThing &thing,
                           const ViewPoint &foot) const
{
    switch (thing.kind) {
    case RoadsideThing::Kind::Post:
        return paintPost(painter, foot);
    case RoadsideThing::Kind::BroadTree:
        return paintBroadTree(painter, thing, foot);
    case RoadsideThing::Kind::Conifer:
        return paintConifer(painter, thing, foot);
    case RoadsideThing::Kind::StopSign:
        return paintStopSign(painter, thing, foot);
    case RoadsideThing::Kind::ChevronBoard:
        return paintBoard(painter, thing);
    }
}

void DemoScene::paintPost(QPainter &painter, const ViewPoint &foot) const
{
    const double width = 0.14 * mFocalLength / foot.y();
    const auto band = [&](double low, double high, const QColor &colour) {
        const QPointF top = toPicture(foot, high);
        const double height = toPicture(foot, low).y() - top.y();
        painter.fillRect(QRectF(top.x() - width / 2, top.y(), width, height), colour);
    };
    band(0.0, 1.0, hazed(White, foot.y()));
    band(0.68, 0.88, hazed(QColor(40, 42, 46), foot.y()));
}

void DemoScene::paintBroadTree(QPainter &painter, const RoadsideThing &tree,
                               const ViewPoint &foot) const
{
    const double metre = mFocalLength / foot.y();
    const double size = tree.height * metre;
    const QPointF base = toPicture(foot, 0.0);
    const QColor leaves = mixedColour(QColor(84, 122, 62), QColor(122, 140, 74), tree.shade);
    painter.fillRect(
        QRectF(base.x() - 0.15 * metre, base.y() - size * 0.4, 0.3 * metre, size * 0.4),
        hazed(Trunk, foot.y()));
    painter.setBrush(hazed(leaves.darker(125), foot.y()));
    painter.drawEllipse(base - QPointF(0, size * 0.60), size * 0.32, size * 0.36);
    painter.setBrush(hazed(leaves, foot.y()));
    painter.drawEllipse(base - QPointF(size * 0.05, size * 0.67), size * 0.25, size * 0.29);
    painter.setBrush(hazed(leaves.lighter(112), foot.y()));
    painter.drawEllipse(base - QPointF(size * 0.09, size * 0.76), size * 0.15, size * 0.17);
}

void DemoScene::paintConifer(QPainter &painter, const RoadsideThing &tree,
                             const ViewPoint &foot) const
{
    const double size = tree.height * mFocalLength / foot.y();
    const QPointF base = toPicture(foot, 0.0);
    const QColor needles = mixedColour(QColor(46, 84, 62), QColor(66, 104, 66), tree.shade);
    painter.fillRect(QRectF(base.x() - size * 0.02, base.y() - size * 0.1, size * 0.04, size * 0.1),
                     hazed(Trunk, foot.y()));
    for (int tier = 0; tier < 3; ++tier) {
        const double low = size * (0.08 + 0.24 * tier);
        const double width = size * (0.23 - 0.05 * tier);
        painter.setBrush(hazed(needles.lighter(100 + 9 * tier), foot.y()));
        painter.drawPolygon(QPolygonF({base + QPointF(-width, -low), base + QPointF(width, -low),
                                       base + QPointF(0, -low - size * 0.44)}));
    }
}

void DemoScene::paintStopSign(QPainter &painter, const RoadsideThing &sign,
                              const ViewPoint &foot) const
{
    const double metre = mFocalLength / foot.y();
    const QPointF middle = toPicture(foot, sign.height);
    painter.fillRect(
        QRectF(middle.x() - 0.04 * metre, middle.y(), 0.08 * metre, sign.height * metre),
        tinted(SignBack));
    if (mCamera == Camera::Rear)
        return painter.fillPath(octagon(middle, 0.45 * metre), tinted(SignBack));
    painter.fillPath(octagon(middle, 0.47 * metre), White);
    painter.fillPath(octagon(middle, 0.43 * metre), SignRed);
    painter.setFont(boldFont(qMax(1, qRound(0.26 * metre))));
    painter.setPen(White);
    painter.drawText(QRectF(middle.x() - metre, middle.y() - metre, 2 * metre, 2 * metre),
                     Qt::AlignCenter, QStringLiteral("STOP"));
    painter.setPen(Qt::NoPen);
}

void DemoScene::paintBoard(QPainter &painter, const RoadsideThing &board) const
{
    constexpr int Stripes = 5;
    constexpr double Width = 0.9;
    constexpr double Low = 0.5;
    const auto corner = [&](double along, double height) {
        const ViewPoint point = toView(board.place.toTheRight((along - Stripes / 2.0) * Width));
        return toPicture({point.x(), std::max(point.y(), NearDepth)}, height);
    };
    const auto stripe = [&](double left, double right, double tip, const QColor &colour) {
        const double middle = (Low + board.height) / 2.0;
        painter.setBrush(tinted(colour));
        painter.drawPolygon(QPolygonF({corner(left, Low), corner(right, Low),
                                       corner(right + tip, middle), corner(right, board.height),
                                       corner(left, board.height), corner(left + tip, middle)}));
    };
    if (mCamera == Camera::Rear)
        return stripe(0, Stripes, 0, SignBack);
    stripe(0, Stripes, 0, White);
    for (int number = 0; number < Stripes; ++number)
        stripe(number + 0.15, number + 0.6, 0.35, SignRed);
}

void DemoScene::writeValues(int second)
{
    mValuesSecond = second;
    mValues.fill(Qt::transparent);
    const DriveSample sample = mDrive.sampleAt(second);
    const QString values[] = {QStringLiteral("t %1 s").arg(second),
                              QStringLiteral("%1 km/h").arg(sample.speedKmh),
                              QStringLiteral("%1\u00b0").arg(int(sample.courseDeg))};
    const Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};

    QPainter painter(&mValues);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(mScale, mScale);
    writeHeadline(painter, sample);
    const QRectF strip(0, ValuesTop, mWidth, DrawingHeight - ValuesTop);
    painter.fillRect(strip, QColor(16, 22, 30, 225));
    painter.setFont(boldFont(80));
    painter.setPen(White);
    for (int column = 0; column < 3; ++column)
        painter.drawText(strip.adjusted(36, ProgressHeight, -36, 0),
                         alignments[column] | Qt::AlignVCenter, values[column]);
}

void DemoScene::writeHeadline(QPainter &painter, const DriveSample &sample) const
{
    const QRectF clock(28, 24, 640, 72);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(16, 22, 30, 170));
    painter.drawRoundedRect(clock, 12, 12);
    const QRectF badge(mWidth - 28 - 250, 24, 250, 72);
    const bool isFront = mCamera == Camera::Front;
    painter.setBrush(isFront ? QColor(24, 92, 160) : QColor(184, 88, 16));
    painter.drawRoundedRect(badge, 12, 12);

    painter.setPen(White);
    painter.setFont(boldFont(50));
    painter.drawText(clock, Qt::AlignCenter,
                     sample.localTime.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    painter.drawText(badge, Qt::AlignCenter,
                     isFront ? QStringLiteral("FRONT") : QStringLiteral("REAR"));
}

void DemoScene::paintProgress(QPainter &painter, double share) const
{
    const QRectF bar(0, ValuesTop, mWidth, ProgressHeight);
    painter.fillRect(bar, QColor(52, 60, 70));
    painter.fillRect(QRectF(bar.topLeft(), QSizeF(mWidth * share, ProgressHeight)),
                     QColor(255, 196, 40));
}
