// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "parserobject.h"
#include "telemetryblock.h"

#include <QTemporaryFile>
#include <QtTest>

#include <cmath>
#include <cstdio>
#include <vector>

namespace {
constexpr int LatitudeAt = 39;
constexpr int LongitudeAt = 48;
constexpr int ExtraValueAt = 57;
constexpr int SpeedAt = 62;
constexpr int GsensorXAt = 173;
constexpr int GsensorZAt = 181;
const char GsensorError[] = "gsensor data error";

/** One sample of a ride: the number it is decoded as, its position, and the direction wanted. */
struct Step
{
    int number;
    double latitude;
    double longitude;
    double direction;
};
using Ride = QVector<Step>;

/** The angle on the Mercator chart between the magnitudes of two positions. */
double course(double lat1, double lon1, double lat2, double lon2)
{
    const auto chart = [](double lat) { return std::asinh(std::tan(lat * M_PI / 180.0)); };
    const double rise = chart(std::fabs(lat2)) - chart(std::fabs(lat1));
    const double run = (std::fabs(lon2) - std::fabs(lon1)) * M_PI / 180.0;
    return std::fmod(std::atan2(run, rise) * 180.0 / M_PI + 360.0, 360.0);
}

double scannedAngle(const char *text, const char *format)
{
    int degrees = 0;
    int minutes = 0;
    std::sscanf(text, format, &degrees, &minutes);
    return minutes / 10000.0 / 60.0 + degrees;
}

int scannedNumber(const char *text, const char *format)
{
    int number = 0;
    std::sscanf(text, format, &number);
    return number;
}

float scannedAcceleration(const char *text)
{
    int units = 0;
    int hundredths = 0;
    std::sscanf(text + 1, "%1d%2d", &units, &hundredths);
    const double magnitude = hundredths / 100.0 + units;
    return float(*text == '-' ? -magnitude : magnitude);
}

bool isClose(double actual, double expected, double tolerance)
{
    return std::fabs(actual - expected) <= tolerance;
}
} // namespace

Q_DECLARE_METATYPE(Ride)

class TestSampleDecoding : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void allFields();
    void references_data();
    void references();
    void digitsAreScanned_data();
    void digitsAreScanned();
    void gsensor_data();
    void gsensor();
    void directions_data();
    void directions();
    void integers();

private:
    GpsData decode(const QByteArray &block, int number = 1);

    QTemporaryFile mFile;
    std::unique_ptr<ParserObject> mParser;
};

void TestSampleDecoding::init()
{
    QVERIFY(mFile.open());
    mParser = std::make_unique<ParserObject>(mFile.fileName());
}

void TestSampleDecoding::cleanup()
{
    mParser.reset();
    QVERIFY(mFile.resize(0));
    mFile.close();
}

GpsData TestSampleDecoding::decode(const QByteArray &block, int number)
{
    // Exactly the block, without the NUL that a byte array has behind it.
    const std::vector<char> exact(block.cbegin(), block.cend());
    GpsData sample;
    if (!mParser->dataResolve(number, exact.data(), sample))
        qFatal("Decoding is never refused");
    return sample;
}

void TestSampleDecoding::allFields()
{
    TelemetryBlock block;
    block.time = "20200828142305";
    block.mark1 = 'q';
    block.time2 = "abcdefghijklmn";
    block.mark2 = 'r';
    block.latitudeRef = 'S';
    block.latitude = "22371234";
    block.longitudeRef = 'E';
    block.longitude = "113565678";
    block.extraValue = "12345";
    block.speed = "067";
    block.gsensorX = "-098";
    block.gsensorY = "+100";
    block.gsensorZ = "+987";
    const GpsData sample = decode(block.plain());
    QCOMPARE(sample.time, "20200828142305");
    QCOMPARE(sample.mark1, 'q');
    QCOMPARE(sample.time2, "abcdefghijklmn");
    QCOMPARE(sample.mark2, 'r');
    QCOMPARE(sample.latitudeRef, 'S');
    QCOMPARE(sample.latitude, -(371234 / 10000.0 / 60.0 + 22));
    QCOMPARE(sample.longitudeRef, 'E');
    QCOMPARE(sample.longitude, 565678 / 10000.0 / 60.0 + 113);
    QCOMPARE(sample.extraValue, 12345);
    QCOMPARE(sample.speed, 67);
    QCOMPARE(sample.gsensorX, -0.98f);
    QCOMPARE(sample.gsensorY, 1.0f);
    QCOMPARE(sample.gsensorZ, 9.87f);
}

void TestSampleDecoding::references_data()
{
    QTest::addColumn<char>("latitudeRef");
    QTest::addColumn<char>("longitudeRef");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");

    QTest::newRow("north-east") << 'N' << 'E' << 30.5 << 120.25;
    QTest::newRow("south-east") << 'S' << 'E' << -30.5 << 120.25;
    QTest::newRow("north-west") << 'N' << 'W' << 30.5 << -120.25;
    QTest::newRow("south-west") << 'S' << 'W' << -30.5 << -120.25;
    QTest::newRow("small letters are no references") << 's' << 'w' << 30.5 << 120.25;
}

void TestSampleDecoding::references()
{
    TelemetryBlock block;
    block.setPosition(30.5, 120.25);
    QFETCH(char, latitudeRef);
    QFETCH(char, longitudeRef);
    block.latitudeRef = latitudeRef;
    block.longitudeRef = longitudeRef;
    const GpsData sample = decode(block.plain());
    QTEST(sample.latitude, "latitude");
    QTEST(sample.longitude, "longitude");
}

void TestSampleDecoding::digitsAreScanned_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("blanks do not count") << LatitudeAt << QByteArray(" 2 37123");
    QTest::newRow("other white space") << LatitudeAt << QByteArray("\t\n2\v\f\r12");
    QTest::newRow("blank degrees take minutes") << LatitudeAt << QByteArray("  371234");
    QTest::newRow("blank field ends at the reference") << LatitudeAt << QByteArray(8, ' ');
    QTest::newRow("runs on over a blank reference")
        << LatitudeAt << QByteArray(9, ' ') + "113565678";
    QTest::newRow("minutes run on") << LatitudeAt << QByteArray("22       113565678");
    QTest::newRow("signed degrees") << LatitudeAt << QByteArray("-5123456");
    QTest::newRow("signed minutes") << LatitudeAt << QByteArray("22-12345");
    QTest::newRow("sign alone") << LongitudeAt << QByteArray("-  123456");
    QTest::newRow("letter first leaves the minutes") << LongitudeAt << QByteArray("x13565678");
    QTest::newRow("letter in the minutes") << LongitudeAt << QByteArray("11356x678");
    QTest::newRow("no hexadecimals") << LongitudeAt << QByteArray("0x1000001");
    QTest::newRow("NUL in the field") << LatitudeAt
                                      << QByteArray("22\0"
                                                    "71234",
                                                    8);
    QTest::newRow("extra value takes the speed") << ExtraValueAt << QByteArray("     067");
    QTest::newRow("extra value negative") << ExtraValueAt << QByteArray("-1234");
    QTest::newRow("speed with a point") << SpeedAt << QByteArray("6.7");
    QTest::newRow("speed runs on") << SpeedAt << QByteArray("   4567");
    QTest::newRow("blank units") << GsensorXAt << QByteArray("+ 98");
    QTest::newRow("blank hundredths take the next sign") << GsensorXAt << QByteArray("+1  -512");
    QTest::newRow("signed units fail") << GsensorXAt << QByteArray("+-12");
    QTest::newRow("signed hundredths") << GsensorXAt << QByteArray("-1-5");
    QTest::newRow("blank to the end of the block")
        << GsensorZAt << '+' + QByteArray(TelemetryBlock::Size - GsensorZAt - 1, ' ');
    QTest::newRow("digit at the end of the block")
        << GsensorZAt << '+' + QByteArray(TelemetryBlock::Size - GsensorZAt - 2, ' ') + '7';
    QTest::newRow("blank from the latitude to the end of the block")
        << LatitudeAt
        << QByteArray(GsensorXAt - LatitudeAt, ' ') + "+   +   +   " +
               QByteArray(TelemetryBlock::Size - GsensorZAt - 4, ' ');
}

void TestSampleDecoding::digitsAreScanned()
{
    QFETCH(int, offset);
    QFETCH(QByteArray, text);
    TelemetryBlock fields;
    fields.extraValue = "12345";
    fields.speed = "067";
    fields.gsensorX = fields.gsensorY = fields.gsensorZ = "+123";
    QByteArray block = fields.plain().replace(offset, text.size(), text);
    const GpsData sample = decode(block);
    const char *bytes = block.constData();
    QCOMPARE(sample.latitude, scannedAngle(bytes + LatitudeAt, "%2d%6d"));
    QCOMPARE(sample.longitude, scannedAngle(bytes + LongitudeAt, "%3d%6d"));
    QCOMPARE(sample.extraValue, scannedNumber(bytes + ExtraValueAt, "%5d"));
    QCOMPARE(sample.speed, scannedNumber(bytes + SpeedAt, "%3d"));
    QCOMPARE(sample.gsensorX, scannedAcceleration(bytes + GsensorXAt));
    QCOMPARE(sample.gsensorZ, scannedAcceleration(bytes + GsensorZAt));
}

void TestSampleDecoding::gsensor_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<float>("g");
    QTest::addColumn<bool>("isSigned");

    QTest::newRow("negative") << QByteArray("-098") << -0.98f << true;
    QTest::newRow("positive") << QByteArray("+100") << 1.0f << true;
    QTest::newRow("negative zero") << QByteArray("-000") << 0.0f << true;
    QTest::newRow("greatest") << QByteArray("+999") << 9.99f << true;
    QTest::newRow("no sign") << QByteArray("?012") << 0.0f << false;
    QTest::newRow("digit for a sign") << QByteArray("1234") << 0.0f << false;
    QTest::newRow("NUL for a sign") << QByteArray("\0"
                                                  "123",
                                                  4)
                                    << 0.0f << false;
}

void TestSampleDecoding::gsensor()
{
    QFETCH(QByteArray, text);
    QFETCH(float, g);
    QFETCH(bool, isSigned);
    for (int axis = 0; axis < 3; ++axis) {
        TelemetryBlock block;
        block.gsensorX = axis == 0 ? text : "+111";
        block.gsensorY = axis == 1 ? text : "-222";
        block.gsensorZ = axis == 2 ? text : "+333";
        if (!isSigned)
            QTest::ignoreMessage(QtDebugMsg, GsensorError);
        const GpsData sample = decode(block.plain());
        QCOMPARE(sample.gsensorX, axis == 0 ? g : 1.11f);
        QCOMPARE(sample.gsensorY, axis == 1 ? g : -2.22f);
        QCOMPARE(sample.gsensorZ, axis == 2 ? g : 3.33f);
    }
}

void TestSampleDecoding::directions_data()
{
    QTest::addColumn<Ride>("ride");

    constexpr double unit = 1.0 / 600000.0; // of the format: six of them are 0.00001 degrees
    const double toStart = course(0, 0, 49, 8.4);
    const double north = course(49, 8.4, 49.001, 8.4003);
    QTest::newRow("the first is the course from the origin") << Ride{{1, 49, 8.4, toStart}};
    QTest::newRow("one quadrant after another")
        << Ride{{1, 49, 8.4, toStart},
                {2, 49.001, 8.401, course(49, 8.4, 49.001, 8.401)},
                {3, 49, 8.402, course(49.001, 8.401, 49, 8.402)},
                {4, 48.999, 8.401, course(49, 8.402, 48.999, 8.401)},
                {5, 49, 8.4, course(48.999, 8.401, 49, 8.4)}};
    QTest::newRow("standing still keeps it")
        << Ride{{1, 49, 8.4, toStart}, {2, 49.001, 8.4003, north}, {3, 49.001, 8.4003, north}};
    QTest::newRow("latitude moves too little")
        << Ride{{1, 49, 8.4, toStart}, {2, 49 + 5 * unit, 8.5, toStart}};
    QTest::newRow("longitude moves too little")
        << Ride{{1, 49, 8.4, toStart}, {2, 49.1, 8.4 + 5 * unit, toStart}};
    QTest::newRow("both move just enough")
        << Ride{{1, 49, 8.4, toStart},
                {2, 49 + 7 * unit, 8.4 + 7 * unit, course(49, 8.4, 49 + 7 * unit, 8.4 + 7 * unit)}};
    QTest::newRow("too small steps are measured one by one")
        << Ride{{1, 49, 8.4, toStart},
                {2, 49 + 5 * unit, 8.4 + 5 * unit, toStart},
                {3, 49 + 10 * unit, 8.4 + 10 * unit, toStart}};
    QTest::newRow("an earlier number keeps it and is measured from")
        << Ride{{5, 49, 8.4, toStart},
                {3, 49.001, 8.4003, toStart},
                {4, 49.002, 8.401, course(49.001, 8.4003, 49.002, 8.401)}};
    QTest::newRow("the same number keeps it")
        << Ride{{1, 49, 8.4, toStart}, {1, 49.001, 8.4003, toStart}};
    QTest::newRow("the south is mirrored, and computed though the latitude rests")
        << Ride{{1, -33, 151, course(0, 0, 33, 151)}, {2, -33, 151.001, 90}, {3, -33, 151, 270}};
    QTest::newRow("the west is mirrored, and computed though the longitude rests")
        << Ride{{1, 40, -74, course(0, 0, 40, 74)}, {2, 40.001, -74, 0}, {3, 40, -74, 180}};
    QTest::newRow("standing still in the south-west keeps it")
        << Ride{{1, -33, -70, course(0, 0, 33, 70)},
                {2, -33.001, -70.002, course(33, 70, 33.001, 70.002)},
                {3, -33.001, -70.002, course(33, 70, 33.001, 70.002)},
                {4, -33, -70, course(33.001, 70.002, 33, 70)}};
    QTest::newRow("no fix keeps it, and so does the next") << Ride{
        {1, 49, 8.4, toStart}, {2, 0, 0, course(49, 8.4, 0, 0)}, {3, 0, 0, course(49, 8.4, 0, 0)}};
}

void TestSampleDecoding::directions()
{
    QFETCH(Ride, ride);
    for (const Step &step : qAsConst(ride)) {
        TelemetryBlock block;
        block.setPosition(step.latitude, step.longitude);
        const GpsData sample = decode(block.plain(), step.number);
        QVERIFY2(isClose(sample.direction, step.direction, 1e-3),
                 qPrintable(QStringLiteral("sample %1: %2, not %3")
                                .arg(step.number)
                                .arg(sample.direction)
                                .arg(step.direction)));
    }
}

void TestSampleDecoding::integers()
{
    mFile.write("\x81\2\3\4\5\6\7\x88");
    mFile.flush();
    mParser = std::make_unique<ParserObject>(mFile.fileName());
    const auto at = [this](int offset) {
        return mParser->file.seek(offset) ? mParser.get() : nullptr;
    };
    QCOMPARE(at(0)->readUint64_fromBig(), Q_UINT64_C(0x8102030405060788));
    QCOMPARE(at(0)->readUint64_fromLittle(), Q_UINT64_C(0x8807060504030281));
    QCOMPARE(at(0)->readUint32_fromBig(), 0x81020304u);
    QCOMPARE(mParser->readUint32_fromLittle(), 0x88070605u);
    QCOMPARE(at(0)->readUint16_fromBig(), quint16(0x8102));
    QCOMPARE(mParser->readUint16_fromLittle(), quint16(0x0403));
    QCOMPARE(mParser->readUint8_fromBig(), quint8(5));
    QCOMPARE(mParser->readUint8_fromLittle(), quint8(6));
    // What is missing at the end of the file is zero, in the bytes and not in the value.
    QCOMPARE(at(6)->readUint64_fromBig(), Q_UINT64_C(0x0788000000000000));
    QCOMPARE(at(6)->readUint64_fromLittle(), Q_UINT64_C(0x8807));
    QCOMPARE(at(6)->readUint32_fromBig(), 0x07880000u);
    QCOMPARE(at(7)->readUint16_fromBig(), quint16(0x8800));
    QCOMPARE(mParser->readUint32_fromBig(), 0u);
    QCOMPARE(mParser->readUint8_fromBig(), quint8(0));
}

QTEST_GUILESS_MAIN(TestSampleDecoding)
#include "tst_sampledecoding.moc"
