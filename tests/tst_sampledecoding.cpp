// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fix.h"
#include "parserobject.h"
#include "telemetryblock.h"

#include <QTemporaryFile>
#include <QtTest>

#include <cmath>
#include <vector>

namespace {
constexpr int LatitudeAt = 39;
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

/** The angle on the Mercator chart between two positions. */
double course(double lat1, double lon1, double lat2, double lon2)
{
    const auto chart = [](double lat) { return std::asinh(std::tan(lat * M_PI / 180.0)); };
    const double rise = chart(lat2) - chart(lat1);
    const double run = (lon2 - lon1) * M_PI / 180.0;
    return std::fmod(std::atan2(run, rise) * 180.0 / M_PI + 360.0, 360.0);
}
} // namespace

Q_DECLARE_METATYPE(Ride)

class TestSampleDecoding : public QObject
{
    Q_OBJECT

private slots:
    // Blocks are decoded without the file; it has to exist all the same.
    void init() { mParser.reset(new ParserObject(QCoreApplication::applicationFilePath())); }
    void allFields();
    void digitsAreScanned();
    void directions_data();
    void directions();
    void integers();
    void fixes_data();
    void fixes();
    void lastFixes();

private:
    GpsData decode(const QByteArray &block, int number = 1);

    std::unique_ptr<ParserObject> mParser;
};

GpsData TestSampleDecoding::decode(const QByteArray &block, int number)
{
    const std::vector<char> exact(block.cbegin(), block.cend()); // without a NUL behind it
    GpsData sample;
    mParser->dataResolve(number, exact.data(), sample);
    return sample;
}

void TestSampleDecoding::allFields()
{
    TelemetryBlock block;
    block.mark1 = 'q';
    block.time2 = "abcdefghijklmn";
    block.mark2 = 'r';
    block.latitudeRef = 'S';
    block.latitude = "22371234";
    block.longitudeRef = 'W';
    block.longitude = "113565678";
    block.extraValue = "12345";
    block.speed = "067";
    block.setAcceleration(-0.98, 9.87, -1.0);
    const GpsData sample = decode(block.plain());
    QCOMPARE(sample.time, block.time.constData());
    QCOMPARE(QByteArray(sample.time2) + sample.mark1 + sample.mark2, "abcdefghijklmnqr");
    QCOMPARE(sample.latitude, -(22 + 37.1234 / 60));
    QCOMPARE(sample.longitude, -(113 + 56.5678 / 60));
    QCOMPARE(sample.extraValue, 12345);
    QCOMPARE(sample.speed, 67);
    QCOMPARE(sample.gsensorX, -0.98f);
    QCOMPARE(sample.gsensorY, 9.87f);
    QCOMPARE(sample.gsensorZ, -1.0f);
}

/** Numbers are read as sscanf does: they may begin late, end early and run on into what follows. */
void TestSampleDecoding::digitsAreScanned()
{
    TelemetryBlock fields;
    fields.longitude = "113565678";
    const auto with = [&](int offset, const QByteArray &text) {
        return decode(fields.plain().replace(offset, text.size(), text));
    };
    constexpr int toTheEnd = TelemetryBlock::Size - GsensorZAt;
    QCOMPARE(with(LatitudeAt, "\t\n2\v\f 12").latitude, 2 + 0.0012 / 60);
    QCOMPARE(with(LatitudeAt, QByteArray(9, ' ')).latitude, 11 + 35.6567 / 60);
    QCOMPARE(with(LatitudeAt, "-5123456").latitude, -5 + 12.3456 / 60);
    QCOMPARE(with(ExtraValueAt, "12 45067").extraValue, 12);
    QCOMPARE(with(GsensorXAt, "+1  -512").gsensorX, 0.95f);
    QCOMPARE(with(GsensorZAt, '+' + QByteArray(toTheEnd - 1, ' ')).gsensorZ, 0.0f);
    QTest::ignoreMessage(QtDebugMsg, "gsensor data error");
    QCOMPARE(with(GsensorXAt, "?111").gsensorX, 0.0f);
}

void TestSampleDecoding::directions_data()
{
    QTest::addColumn<Ride>("ride");

    constexpr double unit = 1.0 / 600000.0; // of the format: six of them are 0.00001 degrees
    const double toStart = course(0, 0, 49, 8.4);
    QTest::newRow("too small a step keeps it, and is measured from")
        << Ride{{1, 49, 8.4, toStart},
                {2, 49 + 5 * unit, 8.5, toStart},
                {3, 49.1, 8.5 + 5 * unit, toStart},
                {4, 49.1 + 7 * unit, 8.5 + 12 * unit, course(49.1, 8.5, 49.1 + unit, 8.5 + unit)}};
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
    file.write("\x81\2\3\4\5\6\7\x88\1\2\3\4\x91\x92\x93");
    file.flush();
    ParserObject parser(file.fileName());
    QCOMPARE(parser.readUint64_fromLittle(), Q_UINT64_C(0x8807060504030281));
    QCOMPARE(parser.readUint16_fromLittle(), quint16(0x0201));
    QCOMPARE(parser.readUint16_fromBig(), quint16(0x0304));
    QCOMPARE(parser.readUint32_fromBig(), 0x91929300u); // what the file lacks is zero
}

void TestSampleDecoding::fixes_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<bool>("isPosition");
    QTest::addColumn<bool>("isFix");
    QTest::newRow("zeros") << 0.0 << 0.0 << false << false;
    QTest::newRow("on the equator") << 0.0 << 9.5 << true << true;
    QTest::newRow("on the meridian") << -9.5 << 0.0 << true << true;
    QTest::newRow("last corner of the globe") << -90.0 << -180.0 << true << true;
    QTest::newRow("beyond the pole") << 90.001 << 9.5 << true << false;
    QTest::newRow("beyond the last meridian") << 9.5 << -180.001 << true << false;
}

void TestSampleDecoding::fixes()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    GpsData sample;
    sample.latitude = latitude;
    sample.longitude = longitude;
    QTEST(hasPosition(sample), "isPosition");
    QTEST(hasFix(sample), "isFix");
}

void TestSampleDecoding::lastFixes()
{
    QList<GpsData> samples;
    for (const double latitude : {0.0, 0.0, 48.0, 0.0, 49.0, 95.0, 0.0}) {
        samples.append(GpsData());
        samples.last().latitude = latitude;
    }
    const double last[] = {0, 0, 0, 48, 48, 49, 49, 49, 49}; // one beyond the end included
    for (int index = 0; index < 9; ++index) {
        const GpsData *fix = lastFixBefore(samples, index);
        QCOMPARE(fix ? fix->latitude : 0.0, last[index]);
    }
}

QTEST_GUILESS_MAIN(TestSampleDecoding)
#include "tst_sampledecoding.moc"
