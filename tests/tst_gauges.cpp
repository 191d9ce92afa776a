// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "directiontray.h"
#include "speedtray.h"

#include <QtMath>
#include <QtTest>

#include <algorithm>
#include <climits>
#include <cmath>

namespace {
constexpr int Side = 400;
constexpr QRgb DarkRed = qRgb(128, 0, 0);
constexpr QRgb DarkerRed = qRgb(78, 18, 18);
constexpr QRgb White = qRgb(240, 240, 240);
constexpr QRgb LightGray = qRgb(190, 190, 190);
constexpr QRgb TextRed = qRgb(245, 41, 56);
constexpr QRgb HubGray = qRgb(120, 120, 120);

/** Where the dial has a number, in degrees clockwise from straight up. */
double scaleDeg(int number)
{
    return -135 + number * 270.0 / 220;
}

QImage picture(QWidget *gauge, const QSize &size = {Side, Side})
{
    gauge->resize(size);
    return gauge->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QPointF middle(const QImage &image)
{
    return {image.width() / 2.0, image.height() / 2.0};
}

double length(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

double directionDeg(const QPointF &vector)
{
    return qRadiansToDegrees(std::atan2(vector.x(), -vector.y()));
}

QPointF vectorTo(double deg, double distance)
{
    return {distance * std::sin(qDegreesToRadians(deg)),
            -distance * std::cos(qDegreesToRadians(deg))};
}

/** Where shapes meet, their smoothed edges let a trace of the ground through. */
bool isColor(QRgb color, QRgb expected)
{
    constexpr int Trace = 8;
    return qAbs(qRed(color) - qRed(expected)) < Trace &&
           qAbs(qGreen(color) - qGreen(expected)) < Trace &&
           qAbs(qBlue(color) - qBlue(expected)) < Trace;
}

bool isNeedle(QRgb color)
{
    return qRed(color) < 150 && qRed(color) - qGreen(color) > 40 && qRed(color) - qBlue(color) > 40;
}

bool isText(QRgb color)
{
    return qRed(color) > 130 && qRed(color) > 2 * qGreen(color);
}

/** The dark red pixels of a square gauge as vectors from its middle, without the written speed,
 *  whose edges look like them. */
QVector<QPointF> needle(const QImage &image)
{
    QVector<QPointF> pixels;
    for (int y = 0; y < int(image.height() * 0.74); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isNeedle(image.pixel(x, y)))
                pixels.append(QPointF(x + 0.5, y + 0.5) - middle(image));
        }
    }
    return pixels;
}

/** Where the slender part of the needle points on the whole. */
double needleDeg(const QImage &image)
{
    QPointF sum;
    for (const QPointF &pixel : needle(image)) {
        if (length(pixel) > 0.1 * image.width() && length(pixel) < 0.24 * image.width())
            sum += pixel;
    }
    return directionDeg(sum);
}

double needleLength(const QImage &image)
{
    double longest = 0;
    for (const QPointF &pixel : needle(image))
        longest = std::max(longest, length(pixel));
    return longest;
}

QRect textBounds(const QImage &image)
{
    QRect bounds;
    for (int y = image.height() / 2; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isText(image.pixel(x, y)))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

bool hasColor(const QImage &image, QRgb color)
{
    for (int i = 0; i < image.width() * image.height(); ++i) {
        if (isColor(image.pixel(i % image.width(), i / image.width()), color))
            return true;
    }
    return false;
}

/** The middle of the light pixels around a direction, on the circle that crosses the marks only. */
double markDeg(const QImage &image, double aroundDeg)
{
    constexpr double Black = 22;
    constexpr double Radius = 165.0 / 512;
    double sum = 0;
    double weightedSum = 0;
    for (double deg = aroundDeg - 5; deg < aroundDeg + 5.01; deg += 0.1) {
        const QPointF point = middle(image) + vectorTo(deg, Radius * image.width());
        const double light = qGray(image.pixel(int(point.x()), int(point.y()))) - Black;
        sum += light;
        weightedSum += light * deg;
    }
    return weightedSum / sum;
}

} // namespace

class TestGauges : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void marks_data();
    void marks();
    void speeds_data();
    void speeds();
    void speedsOffTheDial();
    void speedNeedle_data();
    void speedNeedle();
    void speedText_data();
    void speedText();
    void headings_data();
    void headings();
    void compassHub_data();
    void compassHub();
    void longGauges_data();
    void longGauges();
};

void TestGauges::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestGauges::init()
{
    Configuration::GetInstance()->setSpeedUnit(0);
}

void TestGauges::marks_data()
{
    QTest::addColumn<bool>("isDial");
    QTest::addColumn<int>("side");
    QTest::addColumn<double>("toleranceDeg");
    QTest::newRow("dial") << true << 400 << 0.5;
    QTest::newRow("small dial") << true << 150 << 1.2; // half a pixel
    QTest::newRow("rose") << false << 400 << 0.5;
    QTest::newRow("small rose") << false << 150 << 1.2;
}

/** The scale of the picture is the one that the needle is turned by, and keeps all its marks. */
void TestGauges::marks()
{
    QFETCH(bool, isDial);
    QFETCH(int, side);
    QFETCH(double, toleranceDeg);
    QVector<double> expected;
    for (int number = 0; isDial && number <= 220; number += 10)
        expected.append(scaleDeg(number));
    for (int heading = 0; !isDial && heading < 360; heading += 15)
        expected.append(heading);

    SpeedTray dial;
    DirectionTray rose;
    const QImage image = picture(isDial ? static_cast<QWidget *>(&dial) : &rose, {side, side});
    for (double deg : expected) {
        const double found = markDeg(image, deg);
        QVERIFY2(qAbs(found - deg) < toleranceDeg,
                 qPrintable(QString("%1: %2").arg(deg).arg(found)));
    }
}

void TestGauges::speeds_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("speedKmh");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("standing") << 0 << 0 << 0 << "0 km/h";
    QTest::newRow("town") << 0 << 60 << 60 << "60 km/h";
    QTest::newRow("country") << 0 << 100 << 100 << "100 km/h";
    QTest::newRow("end of the dial") << 0 << 220 << 220 << "220 km/h";
    QTest::newRow("miles") << 1 << 100 << 62 << "62 MPH";            // 62.14
    QTest::newRow("miles, cut off") << 1 << 220 << 136 << "136 MPH"; // 136.70
    QTest::newRow("unknown unit") << 7 << 100 << 62 << "62 MPH";
}

void TestGauges::speeds()
{
    QFETCH(int, unit);
    QFETCH(int, speedKmh);
    QFETCH(int, number);
    Configuration::GetInstance()->setSpeedUnit(unit);
    SpeedTray gauge;
    gauge.setSpeed(speedKmh);

    QCOMPARE(gauge.shownSpeed(), number);
    QTEST(gauge.speedText(), "text");
    QCOMPARE(gauge.needleAngleDeg(), number * 270 / 220 - 135);
    const double needleAtDeg = needleDeg(picture(&gauge));
    QVERIFY2(qAbs(needleAtDeg - gauge.needleAngleDeg()) < 0.3,
             qPrintable(QString::number(needleAtDeg)));
    QVERIFY2(qAbs(needleAtDeg - scaleDeg(number)) < 1.0, qPrintable(QString::number(needleAtDeg)));
}

void TestGauges::speedsOffTheDial()
{
    SpeedTray gauge;
    QCOMPARE(gauge.shownSpeed(), 0);
    QCOMPARE(gauge.needleAngleDeg(), -135);
    gauge.setSpeed(100);
    for (int speedKmh : {-1, 221, INT_MIN, INT_MAX}) {
        gauge.setSpeed(speedKmh);
        QCOMPARE(gauge.shownSpeed(), 100);
        QCOMPARE(gauge.needleAngleDeg(), -13);
    }
}

void TestGauges::speedNeedle_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("smallest") << 150;
    QTest::newRow("large") << 400;
}

void TestGauges::speedNeedle()
{
    QFETCH(int, side);
    SpeedTray gauge;
    gauge.setSpeed(110); // straight up
    const QImage image = picture(&gauge, {side, side});

    QVERIFY(qAbs(needleLength(image) - 0.3 * side) < 1.5);
    const QPoint nearHub(side / 2, side / 2 - side * 8 / 100);
    QVERIFY(isColor(image.pixel(nearHub - QPoint(2, 0)), DarkerRed));
    QVERIFY(isColor(image.pixel(nearHub + QPoint(1, 0)), DarkRed));
    const int edge = side / 2 + side * 4 / 100 - 1; // of the hub, without half its outline
    QVERIFY(isColor(image.pixel(side / 2, edge - 1), DarkRed));
    QVERIFY(!isNeedle(image.pixel(side / 2, edge + 1)));
}

void TestGauges::speedText_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("line"); // the middle of the line
    QTest::newRow("small") << QSize(200, 200) << 10 << 0.76 * 200 + 16 / 2.0;
    QTest::newRow("large") << QSize(201, 201) << 14 << 0.76 * 201 + 16 / 2.0;
    QTest::newRow("wide") << QSize(400, 200) << 10 << 0.76 * 200 + 16 / 2.0;
    QTest::newRow("tall") << QSize(200, 400) << 10 << 100 + 0.76 * 200 + 33 / 2.0;
    QTest::newRow("narrower than the text") << QSize(110, 110) << 10 << 0.76 * 110 + 9 / 2.0;
}

void TestGauges::speedText()
{
    QFETCH(QSize, size);
    QFETCH(int, points);
    QFETCH(double, line);
    SpeedTray gauge;
    gauge.setSpeed(100);
    const QImage image = picture(&gauge, size);

    QVERIFY(hasColor(image, TextRed));
    const QFontMetricsF metrics(QFont("Calibri", points));
    const QString text = "100 km/h";
    const double left = (size.width() - metrics.horizontalAdvance(text)) / 2;
    const double baseline = line - metrics.height() / 2 + metrics.ascent();
    const QRectF expected = metrics.tightBoundingRect(text).translated(left, baseline);
    const QRectF found = textBounds(image);
    for (const QPointF &apart :
         {found.topLeft() - expected.topLeft(), found.bottomRight() - expected.bottomRight()})
        QVERIFY2(length(apart) < 2.5, qPrintable(QString("%1, %2").arg(apart.x()).arg(apart.y())));
}

void TestGauges::headings_data()
{
    QTest::addColumn<int>("heading");
    QTest::addColumn<double>("tipDeg");
    QTest::newRow("north") << 0 << 0.0;
    QTest::newRow("east") << 90 << 90.0;
    QTest::newRow("more than a turn") << 450 << 90.0;
    QTest::newRow("counter-clockwise") << -90 << -90.0;
    QTest::newRow("between") << 20 << 20.0;
}

void TestGauges::headings()
{
    QFETCH(int, heading);
    QFETCH(double, tipDeg);
    DirectionTray compass;
    QCOMPARE(compass.headingDeg(), 0);
    compass.setDirection(heading);
    QCOMPARE(compass.headingDeg(), heading);
    const QImage image = picture(&compass);

    QVERIFY(qAbs(needleDeg(image) - tipDeg) < 0.3);
    QVERIFY(qAbs(needleLength(image) - 0.24 * Side) < 1.5);
    const struct
    {
        double forward;
        double right;
        QRgb color;
    } quarters[] = {{40, -3, DarkRed}, {40, 3, DarkerRed}, {-40, -3, White}, {-40, 3, LightGray}};
    for (const auto &quarter : quarters) {
        const QPointF point = middle(image) + vectorTo(tipDeg, quarter.forward) +
                              vectorTo(tipDeg + 90, quarter.right);
        QVERIFY(isColor(image.pixel(int(point.x()), int(point.y())), quarter.color));
    }
}

void TestGauges::compassHub_data()
{
    QTest::addColumn<int>("side");
    for (int side : {110, 150, 200, 400})
        QTest::addRow("%d pixels", side) << side;
}

/** Eight pixels and half an outline of one pixel on either side, at every size. */
void TestGauges::compassHub()
{
    QFETCH(int, side);
    DirectionTray compass;
    const QImage image = picture(&compass, {side, side});
    const QPoint rightOfMiddle(side / 2, side / 2);
    const struct
    {
        int down;
        QRgb color;
    } pixels[] = {{-6, DarkerRed}, {-4, HubGray}, {3, HubGray}, {5, LightGray}};
    for (const auto &pixel : pixels)
        QVERIFY(isColor(image.pixel(rightOfMiddle + QPoint(0, pixel.down)), pixel.color));
}

void TestGauges::longGauges_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("wide") << QSize(400, 200) << QPoint(100, 0);
    QTest::newRow("tall") << QSize(200, 400) << QPoint(0, 100);
}

/** The middle square of a long gauge looks like a square gauge, but for the written speed. */
void TestGauges::longGauges()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, corner);
    const QSize square(200, 200);
    const QSize aboveText(200, 148);
    SpeedTray gauge;
    gauge.setSpeed(150);
    QCOMPARE(picture(&gauge, size).copy({corner, aboveText}),
             picture(&gauge, square).copy({{}, aboveText}));
    DirectionTray compass;
    compass.setDirection(30);
    QCOMPARE(picture(&compass, size).copy({corner, square}), picture(&compass, square));
}

QTEST_MAIN(TestGauges)
#include "tst_gauges.moc"
