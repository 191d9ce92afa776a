// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "coordinateconv.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>

namespace {
constexpr double KmPerMinute = 1.852;
const char SailOption[] = "--sail";
const char NegativeAngle[] = "航向/方位角为负值，请转化成[0 360]之间";
const char AngleTooLarge[] = "航向/方位角为大于360，请转化成[0 360]之间";

double radians(double degrees)
{
    return degrees * M_PI / 180.0;
}

/** Latitude on the Mercator chart, in the same unit as the longitude. */
double chartLatitude(double latitude)
{
    return std::asinh(std::tan(radians(latitude))) * 180.0 / M_PI;
}

bool isClose(double actual, double expected, double tolerance)
{
    return std::fabs(actual - expected) <= tolerance;
}

void expectMessage(const char *text)
{
    const QString pattern = QRegularExpression::escape(QString::fromUtf8(text));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(pattern));
}

/** What the program does when it is run to make one leg and nothing else. */
int sail(char **arguments)
{
    double value[4];
    for (int i = 0; i < 4; ++i)
        value[i] = std::atof(arguments[i]);
    double latitude = 0.0;
    double longitude = 0.0;
    CoordinateConv().StartLatLonCSToEndLatLon(value[0], value[1], value[2], value[3], latitude,
                                              longitude);
    return 0;
}
} // namespace

class TestCoordinateConv : public QObject
{
    Q_OBJECT

private slots:
    void courseAndDistance_data();
    void courseAndDistance();
    void samePointHasNoCourse();
    void nearRightAngle_data();
    void nearRightAngle();
    void endOfLeg_data();
    void endOfLeg();
    void preconditionsStopTheProgram_data();
    void preconditionsStopTheProgram();
};

void TestCoordinateConv::courseAndDistance_data()
{
    QTest::addColumn<double>("lon1");
    QTest::addColumn<double>("lat1");
    QTest::addColumn<double>("lon2");
    QTest::addColumn<double>("lat2");

    QTest::newRow("due north") << 10.0 << 40.0 << 10.0 << 41.0;
    QTest::newRow("due south") << 10.0 << 41.0 << 10.0 << 40.0;
    QTest::newRow("east along a parallel") << 10.0 << 60.0 << 11.0 << 60.0;
    QTest::newRow("west along a parallel") << 11.0 << 60.0 << 10.0 << 60.0;
    QTest::newRow("east along the equator") << 10.0 << 0.0 << 11.0 << 0.0;
    QTest::newRow("north-east") << 10.0 << 50.0 << 11.0 << 51.0;
    QTest::newRow("south-east") << 10.0 << 50.0 << 11.0 << 49.0;
    QTest::newRow("south-west") << 10.0 << 50.0 << 9.0 << 49.0;
    QTest::newRow("north-west") << 10.0 << 50.0 << 9.0 << 51.0;
    QTest::newRow("from the origin") << 0.0 << 0.0 << 113.94 << 22.62;
    QTest::newRow("across the equator") << -20.0 << -10.0 << 15.0 << 35.0;
    QTest::newRow("a car's second") << 8.4 << 49.0 << 8.40012 << 49.00021;
    QTest::newRow("nearly east") << 0.0 << 60.0 << 90.0 << 64.9;
    QTest::newRow("nearly west") << 90.0 << 64.9 << 0.0 << 60.0;
    QTest::newRow("nearly east and far north") << 0.0 << 10.0 << 70.0 << 16.0;
    QTest::newRow("nearly west and far south") << 70.0 << 16.0 << 0.0 << 10.0;
}

void TestCoordinateConv::courseAndDistance()
{
    QFETCH(double, lon1);
    QFETCH(double, lat1);
    QFETCH(double, lon2);
    QFETCH(double, lat2);
    const double run = lon2 - lon1;
    const double rise = chartLatitude(lat2) - chartLatitude(lat1);
    const double course = std::fmod(std::atan2(run, rise) * 180.0 / M_PI + 360.0, 360.0);
    const double fromEastWest = std::fabs(std::fmod(course, 180.0) - 90.0);
    double minutes = std::fabs(lat2 - lat1) * 60.0 * std::hypot(run, rise) / std::fabs(rise);
    // Close to a parallel that quotient is of two small numbers: the middle latitude is used.
    if (fromEastWest <= 9.0 && std::fabs(lat2 - lat1) < 5.0)
        minutes = std::hypot(run, rise) * 60.0 * std::cos(radians((lat1 + lat2) / 2));

    double actualCourse = -1.0;
    double actualKm = -1.0;
    CoordinateConv().LongLatToXY(lon1, lat1, lon2, lat2, actualCourse, actualKm);
    QVERIFY2(isClose(actualCourse, course, 1e-6), qPrintable(QString::number(actualCourse)));
    QVERIFY2(isClose(actualKm, minutes * KmPerMinute, minutes * 1e-7),
             qPrintable(QString::number(actualKm)));
}

void TestCoordinateConv::samePointHasNoCourse()
{
    double course = -1.0;
    double km = -1.0;
    CoordinateConv().LongLatToXY(70.0, 33.0, 70.0, 33.0, course, km);
    QVERIFY(qIsNaN(course));
}

void TestCoordinateConv::nearRightAngle_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<bool>("isNear");

    QTest::newRow("north") << 0.0 << false;
    QTest::newRow("below 81") << 80.999 << false;
    QTest::newRow("81") << 81.0 << true;
    QTest::newRow("below 100") << 99.999 << true;
    QTest::newRow("100") << 100.0 << false;
    QTest::newRow("south") << 180.0 << false;
    QTest::newRow("below 261") << 260.999 << false;
    QTest::newRow("261") << 261.0 << true;
    QTest::newRow("below 280") << 279.999 << true;
    QTest::newRow("280") << 280.0 << false;
    QTest::newRow("full circle") << 360.0 << false;
    QTest::newRow("-90 is 270") << -90.0 << true;
    QTest::newRow("-0.5 is 359.5") << -0.5 << false;
    QTest::newRow("-80.5 is 279.5") << -80.5 << true;
    QTest::newRow("-79.5 is 280.5") << -79.5 << false;
    QTest::newRow("-360 is 360") << -360.0 << false;
    QTest::newRow("-450.5 is 269.5") << -450.5 << true;
    QTest::newRow("450 is 90") << 450.0 << true;
    QTest::newRow("810.25 is 90.25") << 810.25 << true;
    QTest::newRow("360.5 is 0.5") << 360.5 << false;
}

void TestCoordinateConv::nearRightAngle()
{
    QFETCH(double, angle);
    if (angle < 0.0)
        expectMessage(NegativeAngle);
    if (angle > 360.0)
        expectMessage(AngleTooLarge);
    QTEST(CoordinateConv().IsNearRightAngle(angle), "isNear");
}

void TestCoordinateConv::endOfLeg_data()
{
    QTest::addColumn<double>("course");
    QTest::addColumn<double>("km");
    QTest::addColumn<double>("latitude");

    QTest::newRow("nowhere") << 45.0 << 0.0 << 50.0;
    QTest::newRow("north") << 0.0 << 111.12 << 51.0;
    QTest::newRow("south") << 180.0 << 111.12 << 49.0;
    QTest::newRow("60 degrees east of north") << 60.0 << 222.24 << 51.0;
    QTest::newRow("60 degrees west of south") << 240.0 << 222.24 << 49.0;
}

void TestCoordinateConv::endOfLeg()
{
    QFETCH(double, course);
    QFETCH(double, km);
    QFETCH(double, latitude);
    double actualLatitude = 0.0;
    double actualLongitude = 0.0;
    CoordinateConv().StartLatLonCSToEndLatLon(50.0, 20.0, course, km, actualLatitude,
                                              actualLongitude);
    QVERIFY(isClose(actualLatitude, latitude, 1e-9));
    const double rise = chartLatitude(latitude) - chartLatitude(50.0);
    QVERIFY(isClose(actualLongitude, 20.0 + rise * std::tan(radians(course)), 1e-7));
}

void TestCoordinateConv::preconditionsStopTheProgram_data()
{
    QTest::addColumn<QStringList>("leg"); // latitude, longitude, course, distance
    QTest::addColumn<QByteArray>("violated");

    const QByteArray latitude = "dBeginLat>=0 && dBeginLat <= 90";
    const QByteArray longitude = "dBeginLong>=0 && dBeginLong <= 180";
    const QByteArray orient = "dOrient>=0 && dOrient <= 360";
    const QByteArray none;
    QTest::newRow("least values") << QStringList{"0", "0", "0", "0"} << none;
    QTest::newRow("greatest values") << QStringList{"90", "180", "360", "1"} << none;
    QTest::newRow("south") << QStringList{"-0.001", "8", "30", "1"} << latitude;
    QTest::newRow("beyond the pole") << QStringList{"90.001", "8", "30", "1"} << latitude;
    QTest::newRow("no latitude") << QStringList{"nan", "8", "30", "1"} << latitude;
    QTest::newRow("west") << QStringList{"47", "-0.001", "30", "1"} << longitude;
    QTest::newRow("beyond 180") << QStringList{"47", "180.001", "30", "1"} << longitude;
    QTest::newRow("negative course") << QStringList{"47", "8", "-0.001", "1"} << orient;
    QTest::newRow("course beyond 360") << QStringList{"47", "8", "360.001", "1"} << orient;
    QTest::newRow("negative distance")
        << QStringList{"47", "8", "30", "-0.001"} << QByteArray("dDist>=0");
    QTest::newRow("all wrong") << QStringList{"-1", "-1", "-1", "-1"} << latitude;
    QTest::newRow("all but the latitude wrong") << QStringList{"1", "-1", "-1", "-1"} << longitude;
}

void TestCoordinateConv::preconditionsStopTheProgram()
{
    QFETCH(QStringList, leg);
    QFETCH(QByteArray, violated);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList{SailOption} + leg);
    QVERIFY(process.waitForFinished());
    const QByteArray errors = process.readAllStandardError();
    if (violated.isEmpty()) {
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        return;
    }
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QVERIFY2(errors.contains('"' + violated + '"'), errors.constData());
    QVERIFY2(errors.contains("src/coordinateconv"), errors.constData());
}

int main(int argc, char *argv[])
{
    if (argc == 6 && qstrcmp(argv[1], SailOption) == 0)
        return sail(argv + 2);
    QCoreApplication application(argc, argv);
    TestCoordinateConv test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_coordinateconv.moc"
