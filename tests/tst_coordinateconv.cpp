// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "coordinateconv.h"
#include "patience.h"

#include <QPointF>
#include <QProcess>
#include <QtMath>
#include <QtTest>

#include <cmath>

namespace {
constexpr double KmPerMinute = 1.852;
const char SailOption[] = "--sail";

/** Latitude on the Mercator chart, in the same unit as the longitude. */
double chartLatitude(double latitude)
{
    return qRadiansToDegrees(std::asinh(std::tan(qDegreesToRadians(latitude))));
}

/** Longitude and latitude of the end. */
QPointF endOf(double latitude, double longitude, double courseDeg, double km)
{
    QPointF end;
    CoordinateConv().StartLatLonCSToEndLatLon(latitude, longitude, courseDeg, km, end.ry(),
                                              end.rx());
    return end;
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

    QTest::newRow("west along a parallel") << QPointF(11, 60) << QPointF(10, 60);
    QTest::newRow("north-east, across the equator") << QPointF(-20, -10) << QPointF(15, 35);
    QTest::newRow("south-east") << QPointF(10, 50) << QPointF(11, 49);
    QTest::newRow("south-west") << QPointF(10, 50) << QPointF(9, 49);
    QTest::newRow("north-west") << QPointF(10, 50) << QPointF(9, 51);
    QTest::newRow("nearly east, below 5 degrees") << QPointF(0, 60) << QPointF(90, 64.9);
    QTest::newRow("nearly east, 5 degrees") << QPointF(0, 60) << QPointF(90, 65);
}

void TestCoordinateConv::courseAndDistance()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    const double run = to.x() - from.x();
    const double rise = chartLatitude(to.y()) - chartLatitude(from.y());
    const double latitudes = std::fabs(to.y() - from.y());
    const double course = std::fmod(qRadiansToDegrees(std::atan2(run, rise)) + 360.0, 360.0);
    double scale = latitudes / std::fabs(rise);
    // Close to a parallel that quotient is of two small numbers: the middle latitude is used.
    if (std::fabs(std::fmod(course, 180.0) - 90.0) <= 9.0 && latitudes < 5.0)
        scale = std::cos(qDegreesToRadians((from.y() + to.y()) / 2));
    const double km = 60.0 * KmPerMinute * scale * std::hypot(run, rise);

    double actualCourse = -1.0;
    double actualKm = -1.0;
    CoordinateConv().LongLatToXY(from.x(), from.y(), to.x(), to.y(), actualCourse, actualKm);
    QVERIFY2(std::fabs(actualCourse - course) <= 1e-6, QByteArray::number(actualCourse));
    QVERIFY2(std::fabs(actualKm - km) <= km * 1e-7, QByteArray::number(actualKm));
}

void TestCoordinateConv::nearRightAngle()
{
    QTest::ignoreMessage(QtDebugMsg, "航向/方位角为负值，请转化成[0 360]之间");
    QTest::ignoreMessage(QtDebugMsg, "航向/方位角为大于360，请转化成[0 360]之间");
    // The last three are 269.5, 90.25 and, 360e12 having whole turns only, 90.
    for (double angle : {81.0, 279.999, -450.5, 810.25, 360e12 + 90})
        QVERIFY2(CoordinateConv().IsNearRightAngle(angle), QByteArray::number(angle));
    for (double angle : {100.0, 260.999})
        QVERIFY2(!CoordinateConv().IsNearRightAngle(angle), QByteArray::number(angle));
}

void TestCoordinateConv::endOfLeg()
{
    // Two degrees' way at 60 degrees to the meridian is one degree of latitude.
    const QPointF end = endOf(50.0, 20.0, 240.0, 120 * KmPerMinute);
    const double run = (chartLatitude(49.0) - chartLatitude(50.0)) * std::sqrt(3.0);
    QVERIFY(std::fabs(end.y() - 49.0) <= 1e-9);
    QVERIFY(std::fabs(end.x() - (20.0 + run)) <= 1e-7);
}

void TestCoordinateConv::preconditionsStopTheProgram()
{
    const QPair<const char *, const char *> legs[] = {
        // Of several conditions the first is reported.
        {"90 180 360 1", ""},
        {"-0.001 -1 -1 -1", "dBeginLat>=0 && dBeginLat <= 90"},
        {"90.001 8 30 1", "dBeginLat>=0 && dBeginLat <= 90"},
        {"nan 8 30 1", "dBeginLat>=0 && dBeginLat <= 90"},
        {"47 180.001 -1 -1", "dBeginLong>=0 && dBeginLong <= 180"},
        {"47 8 360.001 -1", "dOrient>=0 && dOrient <= 360"},
        {"47 8 30 -0.001", "dDist>=0"}};
    for (const auto &[leg, condition] : legs) {
        QProcess process;
        const QStringList arguments = QString(leg).split(' ');
        process.start(QCoreApplication::applicationFilePath(), QStringList{SailOption} + arguments);
        QVERIFY(process.waitForFinished(PatienceMs));
        QCOMPARE(process.exitStatus() == QProcess::CrashExit, *condition != '\0');
        QVERIFY2(process.readAllStandardError().contains(condition), leg);
    }
}

/** With the option it is the program that makes one leg and nothing else. */
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    TestCoordinateConv test;
    if (argc != 6 || qstrcmp(argv[1], SailOption) != 0)
        return QTest::qExec(&test, argc, argv);
    endOf(std::atof(argv[2]), std::atof(argv[3]), std::atof(argv[4]), std::atof(argv[5]));
    return 0;
}

#include "tst_coordinateconv.moc"
