// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "coordinateconv.h"

#include <QPointF>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>

namespace {
constexpr double KmPerMinute = 1.852;
const char SailOption[] = "--sail";

double radians(double degrees)
{
    return degrees * M_PI / 180.0;
}

/** Latitude on the Mercator chart, in the same unit as the longitude. */
double chartLatitude(double latitude)
{
    return std::asinh(std::tan(radians(latitude))) * 180.0 / M_PI;
}

/** The assertion that stops the program when it makes this leg, empty when none does. */
QByteArray whatStops(const QStringList &leg)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList{SailOption} + leg);
    process.waitForFinished();
    const QByteArray errors = process.readAllStandardError();
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {};
    const QRegularExpression assertion("\"(.*)\" in file src/coordinateconv");
    const auto match = assertion.match(QString::fromUtf8(errors));
    return match.hasMatch() ? match.captured(1).toUtf8() : "another end: " + errors;
}
} // namespace

class TestCoordinateConv : public QObject
{
    Q_OBJECT

private slots:
    void courseAndDistance_data();
    void courseAndDistance();
    void nearRightAngle();
    void endOfLeg();
    void preconditionsStopTheProgram();
};

void TestCoordinateConv::courseAndDistance_data()
{
    QTest::addColumn<QPointF>("from"); // longitude, latitude
    QTest::addColumn<QPointF>("to");

    QTest::newRow("due north") << QPointF(10, 40) << QPointF(10, 41);
    QTest::newRow("due south") << QPointF(10, 41) << QPointF(10, 40);
    QTest::newRow("east along a parallel") << QPointF(10, 60) << QPointF(11, 60);
    QTest::newRow("west along a parallel") << QPointF(11, 60) << QPointF(10, 60);
    QTest::newRow("north-east, across the equator") << QPointF(-20, -10) << QPointF(15, 35);
    QTest::newRow("south-east") << QPointF(10, 50) << QPointF(11, 49);
    QTest::newRow("south-west") << QPointF(10, 50) << QPointF(9, 49);
    QTest::newRow("north-west") << QPointF(10, 50) << QPointF(9, 51);
    QTest::newRow("nearly east, below 5 degrees") << QPointF(0, 60) << QPointF(90, 64.9);
    QTest::newRow("nearly east, 5 degrees") << QPointF(0, 60) << QPointF(90, 65);
    QTest::newRow("nearly west, 6 degrees") << QPointF(70, 16) << QPointF(0, 10);
}

void TestCoordinateConv::courseAndDistance()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    const double run = to.x() - from.x();
    const double rise = chartLatitude(to.y()) - chartLatitude(from.y());
    const double latitudes = to.y() - from.y();
    const double course = std::fmod(std::atan2(run, rise) * 180.0 / M_PI + 360.0, 360.0);
    double minutes = std::fabs(latitudes / rise) * 60.0 * std::hypot(run, rise);
    // Close to a parallel that quotient is of two small numbers: the middle latitude is used.
    if (std::fabs(std::fmod(course, 180.0) - 90.0) <= 9.0 && std::fabs(latitudes) < 5.0)
        minutes = std::hypot(run, rise) * 60.0 * std::cos(radians((from.y() + to.y()) / 2));

    double actualCourse = -1.0;
    double actualKm = -1.0;
    CoordinateConv().LongLatToXY(from.x(), from.y(), to.x(), to.y(), actualCourse, actualKm);
    QVERIFY2(std::fabs(actualCourse - course) <= 1e-6, qPrintable(QString::number(actualCourse)));
    QVERIFY2(std::fabs(actualKm - minutes * KmPerMinute) <= minutes * 1e-7,
             qPrintable(QString::number(actualKm)));
}

void TestCoordinateConv::nearRightAngle()
{
    CoordinateConv converter;
    for (double angle : {81.0, 99.999, 261.0, 279.999})
        QVERIFY2(converter.IsNearRightAngle(angle), QByteArray::number(angle));
    for (double angle : {80.999, 100.0, 260.999, 280.0})
        QVERIFY2(!converter.IsNearRightAngle(angle), QByteArray::number(angle));
    QTest::ignoreMessage(QtDebugMsg, "航向/方位角为负值，请转化成[0 360]之间");
    QVERIFY(converter.IsNearRightAngle(-450.5)); // 269.5
    QTest::ignoreMessage(QtDebugMsg, "航向/方位角为大于360，请转化成[0 360]之间");
    QVERIFY(converter.IsNearRightAngle(810.25)); // 90.25
}

void TestCoordinateConv::endOfLeg()
{
    // Two degrees' way at 60 degrees to the meridian is one degree of latitude.
    double latitude = 0.0;
    double longitude = 0.0;
    CoordinateConv().StartLatLonCSToEndLatLon(50.0, 20.0, 240.0, 120 * KmPerMinute, latitude,
                                              longitude);
    QVERIFY(std::fabs(latitude - 49.0) <= 1e-9);
    const double run = (chartLatitude(49.0) - chartLatitude(50.0)) * std::sqrt(3.0);
    QVERIFY(std::fabs(longitude - (20.0 + run)) <= 1e-7);
}

void TestCoordinateConv::preconditionsStopTheProgram()
{
    // Latitude, longitude, course, distance. Of several the first is reported.
    QCOMPARE(whatStops({"0", "0", "0", "0"}), QByteArray());
    QCOMPARE(whatStops({"90", "180", "360", "1"}), QByteArray());
    const QByteArray latitude = "dBeginLat>=0 && dBeginLat <= 90";
    QCOMPARE(whatStops({"-0.001", "-1", "-1", "-1"}), latitude);
    QCOMPARE(whatStops({"90.001", "8", "30", "1"}), latitude);
    QCOMPARE(whatStops({"nan", "8", "30", "1"}), latitude);
    const QByteArray longitude = "dBeginLong>=0 && dBeginLong <= 180";
    QCOMPARE(whatStops({"47", "-0.001", "-1", "-1"}), longitude);
    QCOMPARE(whatStops({"47", "180.001", "30", "1"}), longitude);
    const QByteArray course = "dOrient>=0 && dOrient <= 360";
    QCOMPARE(whatStops({"47", "8", "-0.001", "-1"}), course);
    QCOMPARE(whatStops({"47", "8", "360.001", "1"}), course);
    QCOMPARE(whatStops({"47", "8", "30", "-0.001"}), QByteArray("dDist>=0"));
}

/** With the option it is the program that makes one leg and nothing else. */
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc != 6 || qstrcmp(argv[1], SailOption) != 0) {
        TestCoordinateConv test;
        return QTest::qExec(&test, argc, argv);
    }
    double leg[4];
    double latitude = 0.0;
    double longitude = 0.0;
    for (int i = 0; i < 4; ++i)
        leg[i] = std::atof(argv[2 + i]);
    CoordinateConv().StartLatLonCSToEndLatLon(leg[0], leg[1], leg[2], leg[3], latitude, longitude);
    return 0;
}

#include "tst_coordinateconv.moc"
