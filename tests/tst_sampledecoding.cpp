// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "parserobject.h"
#include "telemetryblock.h"

#include <QTemporaryFile>
#include <QtTest>

#include <cmath>
#include <vector>

namespace {
constexpr int LatitudeAt = 39;
constexpr int LongitudeAt = 48;
constexpr int ExtraValueAt = 57;
constexpr int GsensorXAt = 173;
constexpr int GsensorZAt = 181;

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

double angle(int degrees, int minutesTimes10000)
{
    return minutesTimes10000 / 10000.0 / 60.0 + degrees;
}
} // namespace

Q_DECLARE_METATYPE(Ride)

class TestSampleDecoding : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void allFields();
    void digitsAreScanned();
    void axisWithoutSignIsZero();
    void directions_data();
    void directions();
    void integers();

private:
    GpsData decode(const QByteArray &block, int number = 1);

    std::unique_ptr<ParserObject> mParser;
};

void TestSampleDecoding::init()
{
    // Blocks are decoded without the file; it has to exist all the same.
    mParser = std::make_unique<ParserObject>(QCoreApplication::applicationFilePath());
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
    block.longitudeRef = 'W';
    block.longitude = "113565678";
    block.extraValue = "12345";
    block.speed = "067";
    block.gsensorX = "-098";
    block.gsensorY = "-100";
    block.gsensorZ = "+987";
    const GpsData sample = decode(block.plain());
    QCOMPARE(sample.time, "20200828142305");
    QCOMPARE(sample.mark1, 'q');
    QCOMPARE(sample.time2, "abcdefghijklmn");
    QCOMPARE(sample.mark2, 'r');
    QCOMPARE(sample.latitudeRef, 'S');
    QCOMPARE(sample.latitude, -angle(22, 371234));
    QCOMPARE(sample.longitudeRef, 'W');
    QCOMPARE(sample.longitude, -angle(113, 565678));
    QCOMPARE(sample.extraValue, 12345);
    QCOMPARE(sample.speed, 67);
    QCOMPARE(sample.gsensorX, -0.98f);
    QCOMPARE(sample.gsensorY, -1.0f);
    QCOMPARE(sample.gsensorZ, 9.87f);
}

/** Numbers are read as sscanf does: they may begin late, end early and run on into what follows. */
void TestSampleDecoding::digitsAreScanned()
{
    TelemetryBlock fields;
    fields.longitude = "113565678";
    const auto with = [&](int offset, const QByteArray &text) {
        return decode(fields.plain().replace(offset, text.size(), text));
    };
    const auto blanks = [](int count) { return QByteArray(count, ' '); };
    constexpr int toTheEnd = TelemetryBlock::Size - GsensorZAt;
    QCOMPARE(with(LatitudeAt - 1, "s22371234w").latitude, angle(22, 371234));
    QCOMPARE(with(LatitudeAt - 1, "s22371234w").longitude, angle(113, 565678));
    QCOMPARE(with(LatitudeAt, " 2 37123").latitude, angle(2, 37123));
    QCOMPARE(with(LatitudeAt, "\t\n2\v\f\r12").latitude, angle(2, 12));
    QCOMPARE(with(LatitudeAt, blanks(9)).latitude, angle(11, 356567));
    QCOMPARE(with(LatitudeAt, "-5123456").latitude, angle(-5, 123456));
    QCOMPARE(with(LongitudeAt, "-  123456").longitude, 0.0);
    QCOMPARE(with(LongitudeAt, "x13565678").longitude, 0.0);
    QCOMPARE(with(LongitudeAt, "0x1000001").longitude, 0.0);
    QCOMPARE(with(ExtraValueAt, "     067").extraValue, 67);
    QCOMPARE(with(ExtraValueAt, "12 45067").extraValue, 12);
    QCOMPARE(with(ExtraValueAt, "12 45067").speed, 67);
    QCOMPARE(with(GsensorXAt, "+ 98").gsensorX, 9.08f);
    QCOMPARE(with(GsensorXAt, "+1  -512").gsensorX, 0.95f);
    QCOMPARE(with(GsensorXAt, "+-12").gsensorX, 0.0f);
    QCOMPARE(with(GsensorZAt, '+' + blanks(toTheEnd - 2) + '7').gsensorZ, 7.0f);
    QCOMPARE(with(GsensorZAt, '+' + blanks(toTheEnd - 1)).gsensorZ, 0.0f);
}

void TestSampleDecoding::axisWithoutSignIsZero()
{
    for (int axis = 0; axis < 3; ++axis) {
        TelemetryBlock block;
        block.setAcceleration(-1.11, 2.22, -3.33);
        QTest::ignoreMessage(QtDebugMsg, "gsensor data error");
        const GpsData sample = decode(block.plain().replace(GsensorXAt + 4 * axis, 1, "?"));
        QCOMPARE(sample.gsensorX, axis == 0 ? 0.0f : -1.11f);
        QCOMPARE(sample.gsensorY, axis == 1 ? 0.0f : 2.22f);
        QCOMPARE(sample.gsensorZ, axis == 2 ? 0.0f : -3.33f);
    }
}

void TestSampleDecoding::directions_data()
{
    QTest::addColumn<Ride>("ride");

    constexpr double unit = 1.0 / 600000.0; // of the format: six of them are 0.00001 degrees
    const double toStart = course(0, 0, 49, 8.4);
    QTest::newRow("the first from the origin, then one quadrant after another")
        << Ride{{1, 49, 8.4, toStart},
                {2, 49.001, 8.401, course(49, 8.4, 49.001, 8.401)},
                {3, 49, 8.402, course(49.001, 8.401, 49, 8.402)},
                {4, 48.999, 8.401, course(49, 8.402, 48.999, 8.401)},
                {5, 49, 8.4, course(48.999, 8.401, 49, 8.4)}};
    QTest::newRow("too small a step keeps it, and is measured from")
        << Ride{{1, 49, 8.4, toStart},
                {2, 49 + 5 * unit, 8.5, toStart},
                {3, 49 + 10 * unit, 8.6, toStart},
                {4, 49.1, 8.6 + 5 * unit, toStart},
                {5, 49.2, 8.6 + 10 * unit, toStart},
                {6, 49.2 + 7 * unit, 8.6 + 17 * unit, course(49.2, 8.6, 49.2 + unit, 8.6 + unit)}};
    QTest::newRow("no later number keeps it, and is measured from")
        << Ride{{5, 49, 8.4, toStart},
                {3, 49.001, 8.4003, toStart},
                {3, 49.002, 8.401, toStart},
                {4, 49.003, 8.4, course(49.002, 8.401, 49.003, 8.4)}};
    QTest::newRow("south and west are mirrored, and computed though one of them rests")
        << Ride{{1, -33, 151, course(0, 0, 33, 151)},
                {2, -33, 151.001, 90},
                {3, 40, -74, course(33, 151.001, 40, 74)},
                {4, 40.001, -74, 0}};
    QTest::newRow("standing still in the south-west keeps it")
        << Ride{{1, -33, -70, course(0, 0, 33, 70)}, {2, -33, -70, course(0, 0, 33, 70)}};
}

void TestSampleDecoding::directions()
{
    QFETCH(Ride, ride);
    for (const Step &step : qAsConst(ride)) {
        TelemetryBlock block;
        block.setPosition(step.latitude, step.longitude);
        const double direction = decode(block.plain(), step.number).direction;
        QVERIFY2(std::fabs(direction - step.direction) <= 1e-3, QByteArray::number(direction));
    }
}

void TestSampleDecoding::integers()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("\x81\2\3\4\5\6\7\x88");
    file.flush();
    ParserObject parser(file.fileName());
    const auto at = [&parser](int offset) { return parser.file.seek(offset) ? &parser : nullptr; };
    QCOMPARE(at(0)->readUint64_fromBig(), Q_UINT64_C(0x8102030405060788));
    QCOMPARE(at(0)->readUint64_fromLittle(), Q_UINT64_C(0x8807060504030281));
    QCOMPARE(at(0)->readUint32_fromBig(), 0x81020304u);
    QCOMPARE(parser.readUint32_fromLittle(), 0x88070605u);
    QCOMPARE(at(0)->readUint16_fromBig(), quint16(0x8102));
    QCOMPARE(parser.readUint16_fromLittle(), quint16(0x0403));
    QCOMPARE(parser.readUint8_fromBig(), quint8(5));
    QCOMPARE(parser.readUint8_fromLittle(), quint8(6));
    QCOMPARE(parser.readUint32_fromBig(), 0x07880000u); // what the file lacks is zero
    QCOMPARE(at(6)->readUint32_fromLittle(), 0x8807u);
}

QTEST_GUILESS_MAIN(TestSampleDecoding)
#include "tst_sampledecoding.moc"
