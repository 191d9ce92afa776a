// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "directiontray.h"
#include "speedtray.h"

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

/** A place in the picture, told from its middle. */
QPointF placeAt(const QImage &image, double deg, double distance)
{
    return QRectF(image.rect()).center() + QLineF::fromPolar(distance, 90 - deg).p2();
}

QRgb colorAt(const QImage &image, const QPointF &place)
{
    return image.pixel(int(place.x()), int(place.y()));
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

/** From the middle in the direction of the needle's slender part, as far as the needle reaches. */
QLineF needle(const QImage &image)
{
    const int textTop = int(image.height() * 0.74); // its edges look like the needle
    QPointF sum;
    double longest = 0;
    for (int i = 0; i < image.width() * textTop; ++i) {
        const QPointF place(i % image.width() + 0.5, i / image.width() + 0.5);
        if (!isNeedle(colorAt(image, place)))
            continue;
        const QLineF fromMiddle(QRectF(image.rect()).center(), place);
        longest = std::max(longest, fromMiddle.length());
        if (fromMiddle.length() > 0.1 * image.width() && fromMiddle.length() < 0.24 * image.width())
            sum += fromMiddle.p2() - fromMiddle.p1();
    }
    QLineF line({0, 0}, sum);
    line.setLength(longest);
    return line;
}

/** How far the needle points beside a direction. */
double needleErrorDeg(const QImage &image, double expectedDeg)
{
    return qAbs(std::remainder(90 - needle(image).angle() - expectedDeg, 360));
}

/** The middle of the light pixels around a direction, on the circle that crosses the marks only. */
double markDeg(const QImage &image, double aroundDeg)
{
    constexpr double Black = 22;
    constexpr double Radius = 165.0 / 512;
    double sum = 0;
    double weightedSum = 0;
    for (double deg = aroundDeg - 5; deg < aroundDeg + 5.01; deg += 0.1) {
        const double light = qGray(colorAt(image, placeAt(image, deg, Radius * image.width())));
        sum += light - Black;
        weightedSum += (light - Black) * deg;
    }
    return weightedSum / sum;
}

/** A unit that is longer than any. */
class LongUnit : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1String(text) == QLatin1String("%1 km/h") ? "%1 kilometri/h" : QString();
    }
};

/** As the guidelines for accessible texts define it, from 1 to 21. */
double contrast(QRgb a, QRgb b)
{
    const auto light = [](QRgb color) {
        const auto part = [](int value) { return std::pow((value / 255.0 + 0.055) / 1.055, 2.4); };
        return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) +
               0.0722 * part(qBlue(color)) + 0.05;
    };
    return std::max(light(a), light(b)) / std::min(light(a), light(b));
}

/** How many pixels are red beyond doubt. */
int redPixels(const QImage &image)
{
    int count = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QRgb color = image.pixel(i % image.width(), i / image.width());
        count += qRed(color) - std::max(qGreen(color), qBlue(color)) > 60;
    }
    return count;
}

/** Where the written speed stands. */
QRect textRect(const QImage &image)
{
    QRect rect;
    for (int i = image.width() * image.height() / 2; i < image.width() * image.height(); ++i) {
        const QPoint place(i % image.width(), i / image.width());
        const QRgb color = image.pixel(place);
        if (qRed(color) > 150 && qGreen(color) < 100)
            rect |= QRect(place, QSize(1, 1));
    }
    return rect;
}

} // namespace

class TestGauges : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void marks();
    void speeds_data();
    void speeds();
    void speedNeedle();
    void speedTextStaysBetweenTheNumbers();
    void headings();
    void withoutFix();
    void longGauges();
};

void TestGauges::init()
{
    QStandardPaths::setTestModeEnabled(true);
    QLoggingCategory::setFilterRules("*.debug=false");
    Configuration::GetInstance()->setSpeedUnit(0);
}

/** The scale of the picture is the one that the needle is turned by, and keeps all its marks. */
void TestGauges::marks()
{
    SpeedTray dial;
    DirectionTray rose;
    for (int side : {Side, 150}) {
        const double toleranceDeg = 30.0 / side; // a sixth of a pixel
        const QImage dialImage = picture(&dial, {side, side});
        for (int number = 0; number <= 220; number += 10)
            QVERIFY(qAbs(markDeg(dialImage, scaleDeg(number)) - scaleDeg(number)) < toleranceDeg);
        const QImage roseImage = picture(&rose, {side, side});
        for (int heading = 0; heading < 360; heading += 15)
            QVERIFY(qAbs(markDeg(roseImage, heading) - heading) < toleranceDeg);
    }
}

void TestGauges::speeds_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("speedKmh");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("standing") << 0 << 0 << 0 << "0 km/h";
    QTest::newRow("end of the dial") << 0 << 220 << 220 << "220 km/h";
    QTest::newRow("miles, cut off") << 1 << 220 << 136 << "136 MPH"; // 136.70
    QTest::newRow("unknown unit") << 7 << 100 << 62 << "62 MPH";     // 62.14
}

void TestGauges::speeds()
{
    QFETCH(int, unit);
    QFETCH(int, speedKmh);
    QFETCH(int, number);
    Configuration::GetInstance()->setSpeedUnit(unit);
    SpeedTray gauge;
    QCOMPARE(gauge.needleAngleDeg(), -135);
    for (int shownKmh : {speedKmh, -1, 221, INT_MIN, INT_MAX}) { // only the first is on the dial
        gauge.setSpeed(shownKmh);
        QCOMPARE(gauge.shownSpeed(), number);
        QCOMPARE(gauge.needleAngleDeg(), qFloor(scaleDeg(number)));
    }
    QTEST(gauge.speedText(), "text");
    QVERIFY(needleErrorDeg(picture(&gauge), qFloor(scaleDeg(number))) < 0.3);
}

void TestGauges::speedNeedle()
{
    SpeedTray gauge;
    gauge.setSpeed(110); // straight up
    for (int side : {150, Side}) {
        const QImage image = picture(&gauge, {side, side});
        QVERIFY(qAbs(needle(image).length() - 0.3 * side) < 1.5);
        const QPointF nearHub = placeAt(image, 0, 0.08 * side);
        QVERIFY(isColor(colorAt(image, nearHub - QPointF(1.5, 0)), DarkerRed));
        QVERIFY(isColor(colorAt(image, nearHub + QPointF(1.5, 0)), DarkRed));
        const QPointF hubEdge = placeAt(image, 180, 0.04 * side - 0.5); // with half its outline
        QVERIFY(isColor(colorAt(image, hubEdge - QPointF(0, 1)), DarkRed));
        QVERIFY(!isNeedle(colorAt(image, hubEdge + QPointF(0, 1))));
    }
}

void TestGauges::speedTextStaysBetweenTheNumbers()
{
    SpeedTray gauge;
    gauge.setSpeed(110);
    const QRect byDefault = textRect(picture(&gauge, {150, 150}));
    QVERIFY2(byDefault.width() > 45 && byDefault.height() >= 9, "10 points are 13 pixels here");
    LongUnit unit;
    QCoreApplication::installTranslator(&unit);
    QCOMPARE(gauge.speedText(), QStringLiteral("110 kilometri/h"));
    for (const int side : {150, 200, 201}) {
        const QRect rect = textRect(picture(&gauge, {side, side}));
        QVERIFY(rect.width() > side * 0.3);
        QVERIFY(rect.left() > side * 0.27 && rect.right() < side * 0.73);
    }
    QCoreApplication::removeTranslator(&unit);
}

void TestGauges::headings()
{
    constexpr int beside = 4; // degrees from the needle's axis
    const QVector<QPair<int, QRgb>> quarters = {
        {-beside, DarkRed}, {beside, DarkerRed}, {180 + beside, White}, {180 - beside, LightGray}};
    DirectionTray compass;
    QCOMPARE(compass.headingDeg(), 0);
    for (int heading : {20, 450, -90}) {
        compass.setDirection(heading);
        QCOMPARE(compass.headingDeg(), heading);
        const QImage image = picture(&compass);
        QVERIFY(needleErrorDeg(image, heading) < 0.3);
        QVERIFY(qAbs(needle(image).length() - 0.24 * Side) < 1.5);
        for (const auto &[deg, color] : quarters)
            QVERIFY(isColor(colorAt(image, placeAt(image, heading + deg, 40)), color));
    }
}

/** The values stay, but in a grey that stands out from the dial, and words say so as well. */
void TestGauges::withoutFix()
{
    SpeedTray dial;
    dial.setSpeed(110); // straight up
    DirectionTray compass;
    compass.setDirection(90);
    const QImage dialBefore = picture(&dial);
    const QImage compassBefore = picture(&compass);
    QVERIFY(redPixels(dialBefore) > 100 && redPixels(compassBefore) > 100);
    dial.setHasFix(false);
    compass.setHasFix(false);
    const QImage greyDial = picture(&dial);
    const QImage greyCompass = picture(&compass);
    QVERIFY(dialBefore != greyDial && compassBefore != greyCompass);
    QCOMPARE(redPixels(greyDial.copy(150, 100, 100, 300)), 0); // needle and text, not the scale
    QCOMPARE(redPixels(greyCompass.copy(100, 100, 200, 200)), 0);
    const struct
    {
        const QImage &image;
        double headingDeg;
    } needles[] = {{greyDial, 0}, {greyCompass, 90}};
    for (const auto &[image, headingDeg] : needles) {
        const QRgb ground = colorAt(image, placeAt(image, headingDeg + 20, 70));
        for (const int beside : {-3, 3})
            QVERIFY(contrast(colorAt(image, placeAt(image, headingDeg + beside, 40)), ground) > 3);
    }
    QCOMPARE(dial.accessibleDescription(), QStringLiteral("110 km/h (no position fix)"));
    QCOMPARE(compass.accessibleDescription(), QStringLiteral("90\u00b0 (no position fix)"));

    dial.setSpeed(110); // says nothing of a fix
    dial.setHasFix(true);
    compass.setHasFix(true);
    QCOMPARE(picture(&dial), dialBefore);
    QCOMPARE(picture(&compass), compassBefore);
    QCOMPARE(dial.accessibleDescription(), QStringLiteral("110 km/h"));
}

/** The middle square of a long gauge looks like a square gauge, but for the written speed. */
void TestGauges::longGauges()
{
    SpeedTray dial;
    dial.setSpeed(150);
    DirectionTray compass;
    compass.setDirection(30);
    const QSize square(200, 200);
    const QRect aboveText(0, 0, 200, 148);
    const QImage squareDial = picture(&dial, square).copy(aboveText);
    const QImage squareCompass = picture(&compass, square);
    for (const QPoint &corner : {QPoint(100, 0), QPoint(0, 100)}) {
        const QSize size(200 + 2 * corner.x(), 200 + 2 * corner.y());
        QCOMPARE(picture(&dial, size).copy(aboveText.translated(corner)), squareDial);
        QCOMPARE(picture(&compass, size).copy({corner, square}), squareCompass);
    }
}

QTEST_MAIN(TestGauges)
#include "tst_gauges.moc"
