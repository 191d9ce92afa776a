// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mp4parser.h"
#include "recordingwriter.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace Mp4;

namespace {
constexpr quint32 InventedSize = 0xFFFFFFF0;

/** What a walk over a recording tells, in a form that can be compared and printed. */
QString summary(int width, int height, quint32 duration, double frameRate, int decodeType)
{
    return QStringLiteral("%1x%2, %3 s, %4 fps, coding %5")
        .arg(width)
        .arg(height)
        .arg(duration)
        .arg(frameRate, 0, 'g', 6)
        .arg(decodeType);
}

QString factsOf(const Mp4Parser &parser)
{
    return summary(parser.width, parser.height, parser.duration, double(parser.frameRate),
                   parser.decodeType);
}

QString telemetryOf(const Mp4Parser &parser)
{
    return QStringLiteral("scheme %1, %2 entries").arg(parser.gpsFormat).arg(parser.gpsCount);
}

/** Seconds from 1904 to a local time, as the clock on the wall counts them. */
quint32 since1904(const QDate &date, int hour)
{
    return quint32(QDate(1904, 1, 1).daysTo(date) * 86400 + hour * 3600);
}

QByteArray movie(const QByteArray &children)
{
    return box("moov", movieHeader(1000, 10000) + children);
}

QByteArray video(quint16 width, quint32 creationTime = 0, const QByteArray &coding = "avc1")
{
    return videoTrack(width, 480, 300, coding, creationTime).encoded();
}

/** A video track of 640 x 480 whose media box holds nothing but its handler and @p tables. */
QByteArray bentVideo(const QByteArray &tables)
{
    const QByteArray media = handler("vide", "v") + box("minf", box("stbl", tables));
    return box("trak", trackHeader(640, 480) + box("mdia", media));
}

QByteArray carrier(const QByteArray &type, const QByteArray &name, const QList<quint32> &chunks)
{
    Track track;
    track.handlerType = type;
    track.handlerName = name;
    track.chunks = chunks;
    return track.encoded();
}

/** @p count samples, each other than all before. */
QList<TelemetryBlock> ride(int count)
{
    QList<TelemetryBlock> samples;
    for (int i = 0; i < count; ++i) {
        TelemetryBlock block;
        block.time = QByteArray::number(Q_INT64_C(20260314100000) + i);
        block.setPosition(49.0 + i * 0.001, 8.4 - i * 0.01);
        block.setSpeed(i % 1000);
        samples.append(block);
    }
    return samples;
}

QByteArray recording(int scheme, int sampleCount)
{
    RecordingWriter writer;
    writer.tracks = {videoTrack(640, 480, 300)};
    writer.setTelemetry(scheme, ride(sampleCount));
    return writer.encoded();
}

QList<GpsData> samplesOf(Mp4Parser &parser)
{
    QList<GpsData> samples;
    GpsData sample;
    while (parser.getGpsData(samples.size(), sample))
        samples.append(sample);
    return samples;
}

/** Debug lines are off but where a test waits for one: the walks write thousands. */
struct DebugLines
{
    DebugLines() { QLoggingCategory::setFilterRules(QString()); }
    ~DebugLines() { QLoggingCategory::setFilterRules("*.debug=false"); }
};
} // namespace

class TestMp4Parser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void facts_data();
    void facts();
    void creationTime_data();
    void creationTime();
    void schemes_data();
    void schemes();
    void marks_data();
    void marks();
    void telemetryTracks_data();
    void telemetryTracks();
    void bentTables_data();
    void bentTables();
    void blocksBehindTheEnd();
    void noSample();
    void mostSamples();
    void cutAnywhere();
    void zeroFilled_data();
    void zeroFilled();
    void unreadable();
    void report();
    void graftRefused();

private:
    QString path() const { return mDir.filePath("recording.mp4"); }
    void write(const QByteArray &bytes);
    std::unique_ptr<Mp4Parser> parse(const QByteArray &bytes);
    void compare(const QList<GpsData> &samples, const QList<TelemetryBlock> &expected);

    QTemporaryDir mDir;
};

void TestMp4Parser::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestMp4Parser::write(const QByteArray &bytes)
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

std::unique_ptr<Mp4Parser> TestMp4Parser::parse(const QByteArray &bytes)
{
    write(bytes);
    return std::make_unique<Mp4Parser>(path());
}

void TestMp4Parser::compare(const QList<GpsData> &samples, const QList<TelemetryBlock> &expected)
{
    QCOMPARE(samples.size(), expected.size());
    for (int i = 0; i < samples.size(); ++i) {
        QCOMPARE(samples.at(i).id, i);
        QCOMPARE(QByteArray(samples.at(i).time), expected.at(i).time);
        QCOMPARE(samples.at(i).speed, expected.at(i).speed.toInt());
        QVERIFY(qAbs(samples.at(i).latitude - (49.0 + i * 0.001)) < 1e-6);
    }
}

void TestMp4Parser::facts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const QString whole = summary(640, 480, 10, 30, 1);
    const QString unrated = summary(640, 480, 10, 0, 1);
    const QString uncoded = summary(640, 480, 10, 0, 0);
    const QString durationOnly = summary(0, 0, 10, 0, 0);
    const QString nothing = summary(0, 0, 0, 0, 0);
    const auto timed = [](quint32 timeScale, quint32 duration, quint32 count) {
        return box("moov",
                   movieHeader(timeScale, duration) + videoTrack(640, 480, count).encoded());
    };

    QTest::newRow("nothing") << QByteArray() << nothing;
    QTest::newRow("H.264") << movie(video(640)) << whole;
    QTest::newRow("H.265") << movie(video(640, 0, "hvc1")) << summary(640, 480, 10, 30, 2);
    QTest::newRow("other coding") << movie(video(640, 0, "mp4v")) << summary(640, 480, 10, 30, 0);
    QTest::newRow("65535 wide") << movie(video(65535)) << summary(65535, 480, 10, 30, 1);

    QTest::newRow("duration is cut") << timed(1000, 10999, 0) << summary(640, 480, 10, 0, 1);
    QTest::newRow("no time scale") << timed(0, 10000, 300) << summary(640, 480, 0, 0, 1);
    QTest::newRow("no duration") << timed(1000, 0, 300) << summary(640, 480, 0, 0, 1);
    QTest::newRow("29.97 fps") << timed(30000, 300300, 300) << whole;
    QTest::newRow("23.976 fps") << timed(24000, 240240, 240) << summary(640, 480, 10, 24, 1);
    QTest::newRow("product beyond 31 bits")
        << timed(100000, 100000000, 24000) << summary(640, 480, 1000, 24, 1);
    const double wrapped = double(300000ll * 90000 % 0x100000000ll) / 900000000;
    QTest::newRow("product beyond 32 bits")
        << timed(90000, 900000000, 300000)
        << summary(640, 480, 10000, QString::number(wrapped, 'f', 1).toDouble(), 1);
    QTest::newRow("movie header behind the track")
        << box("moov", video(640) + movieHeader(1000, 10000)) << unrated;

    QTest::newRow("widest first") << movie(video(640) + video(320, 0, "hvc1")) << whole;
    QTest::newRow("widest last") << movie(video(320, 0, "hvc1") + video(640)) << whole;
    QTest::newRow("equal widths") << movie(video(640) + video(640, 0, "hvc1")) << whole;
    Track wideText = videoTrack(4000, 3000, 1);
    wideText.handlerType = "text";
    QTest::newRow("only video has a picture") << movie(wideText.encoded()) << durationOnly;
    QTest::newRow("coding carries over") << movie(video(320) + video(640, 0, "mp4v")) << whole;
    QTest::newRow("rate carries over")
        << movie(video(320) + videoTrack(640, 480, 0).encoded()) << whole;
    QTest::newRow("negative count carries over")
        << movie(video(320) + videoTrack(640, 480, 0x80000001).encoded()) << whole;
    QTest::newRow("all carries over from a sound track")
        << movie(carrier("soun", "s", {}) + video(320) + bentVideo({})) << whole;
    QTest::newRow("the last entry tells the coding")
        << movie(bentVideo(sampleDescription({"hvc1", "mp4a", "avc1"}))) << unrated;
    QTest::newRow("media before track header")
        << movie(box("trak", box("mdia", handler("vide", "")) + trackHeader(640, 480))) << uncoded;
    QTest::newRow("media before handler")
        << movie(box("trak", trackHeader(640, 480) +
                                 box("mdia", box("minf", box("stbl", sampleSizes(300))) +
                                                 handler("vide", ""))))
        << summary(640, 480, 10, 30, 0);

    QTest::newRow("boxes of no interest")
        << box("ftyp") + box("uuid", QByteArray(40, 'u')) +
               movie(box("iods", "x") + video(640) + box("udta", "y")) + box("wide")
        << whole;
    QTest::newRow("64-bit sizes") << largeBox("mdat", QByteArray(99, 'm')) +
                                         largeBox("moov", movie(video(640)).mid(8))
                                  << whole;
    QTest::newRow("64-bit sizes within")
        << movie(
               largeBox("udta", "u") +
               largeBox("trak", trackHeader(640, 480) +
                                    largeBox("mdia", largeBox("abcd", "e") + handler("vide", ""))))
        << uncoded;
    QTest::newRow("box of no size is its header")
        << boxClaiming(0, "mdat") + movie(video(640)) << whole;
    QTest::newRow("box of no size is not entered")
        << boxClaiming(0, "moov") + movieHeader(1000, 10000) << nothing;
    QTest::newRow("type ends at NUL") << movie(box(QByteArray("mvh\0", 4)) + video(640)) << whole;
    QTest::newRow("size less than the header")
        << movie(video(640)) + boxClaiming(7, "free") + movie(video(4000)) << whole;
    QTest::newRow("the same within")
        << movie(video(640) + boxClaiming(7, "free") + video(4000)) + movie(video(4000)) << whole;
    QTest::newRow("64-bit size less than the header")
        << movie(video(640) + largeBoxClaiming(8, "free") + video(4000)) << whole;
    QTest::newRow("64-bit size that wraps")
        << movie(video(640) + largeBoxClaiming(~0ull, "free") + video(4000)) << whole;
    QTest::newRow("size past the end")
        << movie(video(640) + boxClaiming(InventedSize, "free") + video(4000)) << whole;
    QTest::newRow("child larger than its parent")
        << movie(box("trak", boxClaiming(quint32(8 + video(4000).size()), "free")) + video(4000) +
                 video(640))
        << whole;
    QTest::newRow("parent larger than the file")
        << boxClaiming(InventedSize, "moov", movieHeader(1000, 10000) + video(640)) << whole;
    QTest::newRow("parents within larger than the file")
        << movie(boxClaiming(InventedSize, "trak",
                             trackHeader(640, 480) +
                                 boxClaiming(InventedSize, "mdia", handler("vide", "name"))))
        << uncoded;
    QTest::newRow("handler name larger than the file")
        << movie(box("trak", trackHeader(640, 480) +
                                 box("mdia", boxClaiming(InventedSize, "hdlr",
                                                         handler("vide", "name").mid(8)))))
        << uncoded;
    QTest::newRow("handler too small for its fields")
        << movie(box("trak", trackHeader(640, 480) +
                                 box("mdia", boxClaiming(8, "hdlr", handler("vide", "").mid(8)))))
        << uncoded;
    QTest::newRow("more sample entries than there are")
        << movie(bentVideo(boxClaiming(InventedSize, "stsd", QByteArray(8, '\0') + box("hvc1"))))
        << summary(640, 480, 10, 0, 2);
    QTest::newRow("chunk table larger than the file")
        << movie(bentVideo(box("stco", QByteArray(4, '\0') + big32(0x40000000)) + sampleSizes(300)))
        << uncoded;
    QTest::newRow("chunk table longer than its box")
        << movie(bentVideo(box("stco", QByteArray(4, '\0') + big32(5)) + sampleSizes(300) +
                           sampleDescription({"avc1"})))
        << unrated;
    QTest::newRow("sample sizes are stepped over")
        << movie(bentVideo(box("stsz", sampleSizes(300).mid(8) + sampleDescription({"hvc1"}))))
        << summary(640, 480, 10, 30, 0);

    const QByteArray header = movieHeader(1000, 10000);
    QTest::newRow("movie header goes on in boxes")
        << box("moov", box("mvhd", header.mid(8) + video(640))) << whole;
    QTest::newRow("movie header too small for its fields")
        << box("moov", boxClaiming(8, "mvhd", header.mid(8)) + video(640)) << whole;
    QTest::newRow("track header goes on in boxes")
        << movie(box("trak",
                     box("tkhd", trackHeader(640, 480).mid(8) + box("mdia", handler("vide", "v")))))
        << uncoded;
    const QByteArray timesOf64Bits = QByteArray(4, '\0') + big64(7) + big64(7000) + big32(1000) +
                                     big64(10000) + QByteArray(80, '\0');
    QTest::newRow("movie header of version 1")
        << box("moov", video(640) + box("mvhd", char(1) + timesOf64Bits.mid(1)))
        << summary(640, 480, 0, 0, 1);
    QTest::newRow("track header of version 1")
        << movie(box("trak",
                     box("tkhd", char(1) + QByteArray(15, '\0') + trackHeader(640, 480).mid(12)) +
                         box("mdia", handler("vide", "v"))))
        << durationOnly;
    QByteArray flagged = movie(video(640));
    patchBig32(flagged, "stsd", 0, 1);
    QTest::newRow("sample description with flags") << flagged << uncoded;
}

void TestMp4Parser::facts()
{
    QFETCH(QByteArray, bytes);
    QTEST(factsOf(*parse(bytes)), "expected");
}

void TestMp4Parser::creationTime_data()
{
    QTest::addColumn<QByteArray>("tracks");
    QTest::addColumn<QDateTime>("created");

    const auto at = [](int year, int month, int day, int hour) {
        return QDateTime(QDate(year, month, day), QTime(hour, 0));
    };
    const quint32 winter = since1904(QDate(2026, 1, 14), 9);
    const quint32 summer = since1904(QDate(2026, 7, 14), 9);
    QTest::newRow("no video") << carrier("text", "t", {}) << QDateTime();
    QTest::newRow("zero") << video(640) << at(1904, 1, 1, 0);
    QTest::newRow("winter") << video(640, winter) << at(2026, 1, 14, 9);
    QTest::newRow("summer, an hour on") << video(640, summer) << at(2026, 7, 14, 10);
    QTest::newRow("last second of the count")
        << video(640, ~0u) << at(1904, 1, 1, 0).addSecs(0xFFFFFFFFll);
    QTest::newRow("widest track last") << video(320, 1) + video(640, winter) << at(2026, 1, 14, 9);
    QTest::newRow("equal widths") << video(640, winter) + video(640, 1) << at(2026, 1, 14, 9);
}

void TestMp4Parser::creationTime()
{
    QFETCH(QByteArray, tracks);
    QTEST(parse(movie(tracks))->createDate, "created");
}

void TestMp4Parser::schemes_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isGrafted");

    for (int scheme : {1, 2, 3, 4, 6}) {
        for (int count : {0, 1, 3, scheme == 3 ? 20 : 3000}) {
            QTest::addRow("scheme %d, %d samples", scheme, count) << scheme << count << false;
            if (scheme == 2 || scheme == 4)
                QTest::addRow("scheme %d, %d grafted", scheme, count) << scheme << count << true;
        }
    }
}

void TestMp4Parser::schemes()
{
    QFETCH(int, scheme);
    QFETCH(int, count);
    QFETCH(bool, isGrafted);
    QByteArray bytes = recording(isGrafted ? 0 : scheme, count);
    const QByteArray head = bytes.left(bytes.indexOf("moov") - 4);
    QVERIFY(!isGrafted || graftTelemetry(bytes, ride(count), scheme));
    QVERIFY(bytes.startsWith(head));
    const auto parser = parse(bytes);
    const QString expected = QStringLiteral("scheme %1, %2 entries").arg(scheme).arg(count + 1);
    QCOMPARE(telemetryOf(*parser), expected);
    compare(samplesOf(*parser), ride(count));
    QCOMPARE(factsOf(*parser), summary(640, 480, 10, 30, 1));
}

void TestMp4Parser::marks_data()
{
    QTest::addColumn<quint32>("distance");
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<quint32>("found");

    QTest::newRow("64 KiB") << 0x10004u << QByteArray("freeGPS ") << 0x10004u;
    QTest::newRow("128 KiB") << 0x20004u << QByteArray("freeGPS ") << 0x20004u;
    QTest::newRow("256 KiB") << 0x40004u << QByteArray("freeGPS ") << 0x40004u;
    QTest::newRow("eighth byte is free") << 0x10004u << QByteArray("freeGPSx") << 0x10004u;
    QTest::newRow("first of two") << 0x20004u << QByteArray("freeGPS ") << 0x10004u;
    QTest::newRow("other mark") << 0x10004u << QByteArray("freeGPx ") << 0u;
    QTest::newRow("other place") << 0x30004u << QByteArray("freeGPS ") << 0u;
}

void TestMp4Parser::marks()
{
    QFETCH(quint32, distance);
    QFETCH(QByteArray, mark);
    QFETCH(quint32, found);
    RecordingWriter writer;
    writer.setMarkDistance(distance);
    writer.setTelemetry(3, ride(2));
    QByteArray bytes = writer.encoded().replace("freeGPS ", mark);
    if (found != 0)
        bytes.replace(bytes.indexOf("mdat") + 4 + int(found), mark.size(), mark);
    // The track after the sound is still read: the probe goes back to where it was.
    const QByteArray track = video(640);
    patchBig32(bytes, "moov", -8, quint32(bytes.size() - bytes.indexOf("moov") + 4 + track.size()));
    const auto parser = parse(bytes + track);
    QCOMPARE(parser->gpsExtraOffset, found);
    QCOMPARE(parser->gpsFormat, found == 0 ? 0 : 3);
    if (found == distance)
        compare(samplesOf(*parser), ride(2));
    QCOMPARE(parser->width, 640);
}

void TestMp4Parser::telemetryTracks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<quint32>("count");

    const QList<quint32> chunks{0, 0};
    const auto named = [&chunks](const QByteArray &type, const QByteArray &name) {
        return movie(carrier(type, name, chunks));
    };
    const QByteArray ambarella = carrier("data", "Ambarella EXT", {0, 0, 0});
    const QByteArray gps = carrier("meta", "GPS", chunks);
    const QByteArray gpsBox = box("gps ", QByteArray(4, '\0') + big32(5));
    const QByteArray gps0 = box("gps0", QByteArray(311 * 7 + 310, '\x5C'));

    QTest::newRow("EXT") << named("data", "Ambarella EXT") << 1 << 2u;
    QTest::newRow("EXT in any case") << named("text", "\tmy AMBARELLA ext.") << 1 << 2u;
    QTest::newRow("EXT of a sound track") << named("soun", "Ambarella EXT") << 1 << 2u;
    QTest::newRow("EXT and GPS") << named("meta", "gps Ambarella EXT") << 1 << 2u;
    QTest::newRow("not quite EXT") << named("data", "Ambarella  EXT") << 0 << 0u;
    QTest::newRow("GPS in any case") << named("meta", "Camera gPs data") << 6 << 2u;
    QTest::newRow("GPS behind NUL") << named("meta", QByteArray("name\0gps", 8)) << 0 << 0u;
    QTest::newRow("GPS of a text track") << named("text", "gps") << 0 << 0u;
    QTest::newRow("GPS of a sound track") << named("soun", "gps") << 0 << 0u;
    QTest::newRow("metadata without name") << named("meta", "") << 0 << 0u;
    QTest::newRow("EXT behind GPS") << movie(gps + ambarella) << 1 << 3u;
    QTest::newRow("GPS behind EXT") << movie(ambarella + gps) << 6 << 2u;
    QTest::newRow("sound without mark behind EXT")
        << movie(ambarella + carrier("soun", "s", chunks)) << 1 << 3u;
    QTest::newRow("table in the movie") << movie(gps + gpsBox) << 2 << 5u;
    QTest::newRow("track behind the table") << movie(gpsBox + gps) << 6 << 2u;
    QTest::newRow("table is not stepped over")
        << movie(box("gps ", gpsBox.mid(8) + ambarella)) << 1 << 3u;
    QTest::newRow("table outside the movie") << gpsBox << 0 << 0u;
    QTest::newRow("GPS0, the rest is no block") << gps0 << 4 << 7u;
    // The whole header of 8 bytes counts as such, the 64-bit size as blocks.
    QTest::newRow("GPS0 of 64-bit size")
        << largeBox("gps0", QByteArray(311 * 3 - 8, '\x5C')) << 4 << 3u;
    QTest::newRow("GPS0 behind EXT") << movie(ambarella) + gps0 << 4 << 7u;
    QTest::newRow("GPS0 is not stepped over") << box("gps0", movie(ambarella)) << 1 << 3u;
    QTest::newRow("GPS0 within the movie") << movie(gps0) << 0 << 0u;
    QTest::newRow("64-bit chunk offsets") << movie(gps).replace("stco", "co64") << 6 << 0u;
}

void TestMp4Parser::telemetryTracks()
{
    QFETCH(QByteArray, bytes);
    QFETCH(quint32, count);
    const auto parser = parse(bytes + QByteArray(2000, '\0'));
    QTEST(parser->gpsFormat, "scheme");
    QCOMPARE(parser->gpsCount, count);
    QCOMPARE(samplesOf(*parser).size(), qMax(0, int(count) - 1));
}

void TestMp4Parser::bentTables_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<quint32>("value"); // of the number of entries, or of the size of "gps0"
    QTest::addColumn<int>("count");     // of samples

    const QByteArray stco = "stco";
    const QByteArray gps = "gps ";
    const QByteArray gps0 = "gps0";
    QTest::newRow("scheme 1: none") << 1 << stco << 0u << 0;
    QTest::newRow("scheme 1: one") << 1 << stco << 1u << 0;
    QTest::newRow("scheme 1: two") << 1 << stco << 2u << 1;
    QTest::newRow("scheme 1: invented") << 1 << stco << ~0u << 0;
    QTest::newRow("scheme 2: none") << 2 << gps << 0u << 0;
    QTest::newRow("scheme 2: two") << 2 << gps << 2u << 1;
    QTest::newRow("scheme 2: too many") << 2 << gps << 1000000u << 0;
    QTest::newRow("scheme 3: too many") << 3 << stco << 1000000u << 0;
    QTest::newRow("scheme 4: none") << 4 << gps0 << 318u << 0;
    QTest::newRow("scheme 4: two") << 4 << gps0 << 630u << 1;
    QTest::newRow("scheme 4: less than a header") << 4 << gps0 << 7u << 0;
    QTest::newRow("scheme 4: invented") << 4 << gps0 << InventedSize << 0;
    QTest::newRow("scheme 6: invented") << 6 << stco << 0x80000000u << 0;
}

void TestMp4Parser::bentTables()
{
    QFETCH(int, scheme);
    QFETCH(QByteArray, box);
    QFETCH(quint32, value);
    QFETCH(int, count);
    RecordingWriter writer;
    writer.setTelemetry(scheme, ride(5));
    QByteArray bytes = writer.encoded();
    patchBig32(bytes, box, scheme == 4 ? -8 : 4, value);
    compare(samplesOf(*parse(bytes)), ride(count));
}

void TestMp4Parser::blocksBehindTheEnd()
{
    QByteArray bytes = recording(4, 3);
    constexpr int lastSpeed = 311 - 62;
    bytes.chop(lastSpeed - 1); // the speed's first digit is the last byte of the file
    patchBig32(bytes, "gps0", -8, 8 + 311 * 5);
    const auto samples = samplesOf(*parse(bytes));
    QCOMPARE(samples.size(), 4);
    compare(samples.mid(0, 2), ride(2));
    QCOMPARE(QByteArray(samples.at(2).time), ride(3).at(2).time);
    QCOMPARE(samples.at(2).speed, 0);
    QCOMPARE(samples.at(2).gsensorX, 0.0f);
    const QByteArray maskOnly(14, '\x5C'); // what zeros look like without their mask
    QCOMPARE(QByteArray(samples.at(3).time), maskOnly);
    QCOMPARE(samples.at(3).latitudeRef, '\x5C');
    QCOMPARE(samples.at(3).id, 3);
}

void TestMp4Parser::noSample()
{
    const auto parser = parse(recording(6, 3));
    for (int index : {3, 4, 1 << 30, -1, -4}) {
        GpsData sample;
        QVERIFY(parser->getGpsData(2, sample));
        QVERIFY(!parser->getGpsData(index, sample));
        QCOMPARE(sample.id, 0);
        QCOMPARE(QByteArray(sample.time), QByteArray());
        QCOMPARE(sample.latitude, 0.0);
        QCOMPARE(sample.direction, 0.0);
    }
    GpsData sample;
    for (int scheme : {-1, 0, 9}) {
        parser->gpsFormat = scheme;
        QVERIFY(!parser->getGpsData(0, sample));
    }
}

void TestMp4Parser::mostSamples()
{
    write(box("moov"));
    QVERIFY(QFile::resize(path(), 20000000));
    Mp4Parser parser(path());
    parser.gpsFormat = 1;
    GpsData sample;
    for (quint32 entries : {4000001u, 5000000u}) {
        parser.gpsCount = entries;
        QVERIFY(parser.getGpsData(3999999, sample));
        QVERIFY(!parser.getGpsData(4000000, sample));
    }
    parser.gpsCount = 5000001;
    QVERIFY(!parser.getGpsData(0, sample));
}

void TestMp4Parser::cutAnywhere()
{
    // A file cut short tells the same as one whose rest is zeros.
    RecordingWriter writer;
    writer.tracks = {videoTrack(640, 480, 300, "hvc1", 3000000000), videoTrack(320, 240, 100)};
    writer.setTelemetry(6, ride(3));
    QByteArray bytes = writer.encoded();
    const QString zeroed = mDir.filePath("zeroed.mp4");
    write(bytes);
    QVERIFY(QFile::copy(path(), zeroed));
    QFile rest(zeroed);
    QVERIFY(rest.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    bool hadPicture = true;
    for (int length = bytes.size(); length >= 0; --length) {
        QVERIFY(QFile::resize(path(), length));
        QVERIFY(length == bytes.size() || (rest.seek(length) && rest.putChar('\0')));
        Mp4Parser cut(path());
        Mp4Parser padded(zeroed);
        const QByteArray where = "cut to " + QByteArray::number(length);
        QVERIFY2(factsOf(cut) == factsOf(padded), where);
        QVERIFY2(telemetryOf(cut) == telemetryOf(padded), where);
        QVERIFY2(cut.createDate == padded.createDate, where);
        QVERIFY2(samplesOf(cut).size() == samplesOf(padded).size(), where);
        QVERIFY2(cut.width == 0 || hadPicture, where);
        hadPicture = cut.width != 0;
    }
    QVERIFY(!hadPicture);
}

void TestMp4Parser::zeroFilled_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<qint64>("zeros");
    QTest::addColumn<QString>("expected");

    const qint64 large = Q_INT64_C(4) << 30;
    const QString whole = summary(640, 480, 10, 30, 1);
    const QString nothing = summary(0, 0, 0, 0, 0);
    const QByteArray open = boxClaiming(InventedSize, "moov", movieHeader(1000, 10000));
    QTest::newRow("4 GiB") << QByteArray() << large << nothing;
    QTest::newRow("4 GiB, not in eights") << QByteArray("\0\0\0\0free\0", 9) << large << nothing;
    QTest::newRow("4 GiB in a movie") << open << large << summary(0, 0, 10, 0, 0);
    for (qint64 gap : {8, 4096, 65536, 65544, 1 << 20, (1 << 20) + 8, 100 << 20}) {
        QTest::addRow("%lld before the movie", gap) << QByteArray() << gap << whole;
        QTest::addRow("%lld in the movie", gap) << open << gap << whole;
    }
    // The header begins in the zeros, so its size is none.
    QTest::newRow("12 before the movie") << QByteArray() << Q_INT64_C(12) << nothing;
    QTest::newRow("1 MiB and 4 before the movie") << QByteArray() << Q_INT64_C(1048580) << nothing;
    QTest::newRow("13 before the movie") << QByteArray() << Q_INT64_C(13) << nothing;
}

void TestMp4Parser::zeroFilled()
{
    QFETCH(QByteArray, head);
    QFETCH(qint64, zeros);
    write(head);
    QVERIFY(QFile::resize(path(), head.size() + zeros));
    QFile file(path());
    QVERIFY(file.open(QIODevice::Append));
    if (zeros < Q_INT64_C(4) << 30)
        file.write(head.isEmpty() ? movie(video(640)) : video(640));
    file.close();
    QElapsedTimer timer;
    timer.start();
    Mp4Parser parser(path());
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed()) + " ms"));
    QTEST(factsOf(parser), "expected");
    QCOMPARE(parser.gpsFormat, 0);
}

void TestMp4Parser::unreadable()
{
    const DebugLines on;
    for (const QString &name : {mDir.filePath("absent.mp4"), mDir.path()}) {
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression("^Mp4Parser open file error, file: *\"" +
                                                QRegularExpression::escape(name)));
        Mp4Parser parser(name);
        QCOMPARE(factsOf(parser), summary(0, 0, 0, 0, 0));
        QVERIFY(!parser.createDate.isValid());
        QVERIFY(samplesOf(parser).isEmpty());
    }
}

void TestMp4Parser::report()
{
    const DebugLines on;
    for (const char *line :
         {"^fileName: *.*recording\\.mp4", "^videoInfo: *640 +480 +10 +4$", "^videoDecode: *1$"})
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(line));
    parse(recording(6, 3));
}

void TestMp4Parser::graftRefused()
{
    const QByteArray media = box("mdat", "m");
    const QVector<QPair<QByteArray, int>> refused{
        {movie(video(640)) + media, 2}, // the media would move
        {media, 2},
        {QByteArray(), 4},
        {media.chopped(1), 4},
        {movie(video(640)), 6},
    };
    for (const auto &[original, scheme] : refused) {
        QByteArray bytes = original;
        QVERIFY2(!graftTelemetry(bytes, ride(2), scheme), original);
        QCOMPARE(bytes, original);
    }
}

QTEST_GUILESS_MAIN(TestMp4Parser)
#include "tst_mp4parser.moc"
