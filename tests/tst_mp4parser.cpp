// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mp4parser.h"
#include "recordingwriter.h"
#include "smallrecordings.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace Mp4;

namespace {
const QString Whole = QStringLiteral("640x480, 10 s, 30 fps, coding 1");
const QString Unrated = QStringLiteral("640x480, 10 s, 0 fps, coding 1");
const QString DurationOnly = QStringLiteral("0x0, 10 s, 0 fps, coding 0");

QString factsOf(const Mp4Parser &parser)
{
    return QStringLiteral("%1x%2, %3 s, %4 fps, coding %5")
        .arg(parser.width)
        .arg(parser.height)
        .arg(parser.duration)
        .arg(double(parser.frameRate), 0, 'g', 6)
        .arg(parser.decodeType);
}

QByteArray movie(const QByteArray &children)
{
    return box("moov", movieHeader(1000, 10000) + children);
}

QByteArray video(quint16 width, quint32 creationTime = 0, const QByteArray &coding = "avc1")
{
    return videoTrack(width, 480, 300, coding, creationTime).encoded();
}

/** A video track of 640 x 480 with @p media behind its handler. */
QByteArray bentVideo(const QByteArray &media)
{
    return box("trak", trackHeader(640, 480) + box("mdia", handler("vide", "v") + media));
}

QByteArray tables(const QByteArray &children)
{
    return box("minf", box("stbl", children));
}

QByteArray carrier(const QByteArray &type, const QByteArray &name, const QList<quint32> &chunks)
{
    Track track;
    track.handlerType = type;
    track.handlerName = name;
    track.chunks = chunks;
    return track.encoded();
}

QByteArray recording(int scheme, int sampleCount, const QList<Track> &tracks)
{
    RecordingWriter writer;
    writer.tracks = tracks;
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

void compare(const QList<GpsData> &samples, const QList<TelemetryBlock> &expected)
{
    QCOMPARE(samples.size(), expected.size());
    for (int i = 0; i < samples.size(); ++i) {
        QCOMPARE(samples.at(i).id, i);
        QCOMPARE(QByteArray(samples.at(i).time), expected.at(i).time);
        QCOMPARE(samples.at(i).speed, expected.at(i).speed.toInt());
    }
}
} // namespace

class TestMp4Parser : public QObject
{
    Q_OBJECT

private slots:
    void init() { QLoggingCategory::setFilterRules("*.debug=false"); }
    void facts_data();
    void facts();
    void creationTime();
    void schemes_data();
    void schemes();
    void marks();
    void telemetryTracks_data();
    void telemetryTracks();
    void samplesEnd();
    void zeroFilled();
    void debugLines();

private:
    QString path() const { return mDir.filePath("recording.mp4"); }
    std::unique_ptr<Mp4Parser> parse(const QByteArray &bytes, qint64 zeros = 0,
                                     const QByteArray &rest = {});

    QTemporaryDir mDir;
};

/** Parses a file of these bytes, then zeros, then the rest. */
std::unique_ptr<Mp4Parser> TestMp4Parser::parse(const QByteArray &bytes, qint64 zeros,
                                                const QByteArray &rest)
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() ||
        !file.resize(bytes.size() + zeros) || !file.seek(file.size()) ||
        file.write(rest) != rest.size())
        qFatal("No recording to test with");
    file.close();
    return std::make_unique<Mp4Parser>(path());
}

void TestMp4Parser::facts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const auto row = [](const QByteArray &name, const QString &expected, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << expected;
    };
    const QByteArray header = movieHeader(1000, 10000);
    const QByteArray small = video(640);
    const auto timed = [](quint32 timeScale, quint32 duration, quint32 frames) {
        return box("moov",
                   movieHeader(timeScale, duration) + videoTrack(640, 480, frames).encoded());
    };
    row("values are cut and rounded", "640x480, 10 s, 29.9 fps, coding 1", timed(500, 5010, 300));
    row("no time scale", "640x480, 0 s, 0 fps, coding 1", timed(0, 10000, 300));
    // 320000 * 90000 less six times 2^32 is 3030196224.
    row("product of 32 bits", "640x480, 10000 s, 3.4 fps, coding 1",
        timed(90000, 900000000, 320000));
    row("movie header behind the track", Unrated, box("moov", small + header));

    const QByteArray text = box("trak", trackHeader(4000, 480) + box("mdia", handler("text", "")));
    row("only video has a picture", DurationOnly, movie(text));
    row("widest first, then an equal one", Whole,
        movie(small + video(640, 0, "hvc1") + video(320, 0, "hvc1")));
    row("widest last", "65535x480, 10 s, 30 fps, coding 2", movie(small + video(65535, 0, "hvc1")));
    for (quint32 count : {0u, ~0u})
        QTest::addRow("coding and rate carry over %u frames", count)
            << movie(video(320) + videoTrack(640, 480, count, "mp4v").encoded()) << Whole;
    row("the last entry tells the coding", Unrated,
        movie(bentVideo(tables(sampleDescription({"hvc1", "mp4a", "avc1"})))));
    row("boxes in another order", "640x480, 10 s, 30 fps, coding 0",
        movie(box("trak", box("mdia", tables(sampleSizes(300)) + handler("vide", "")) +
                              trackHeader(640, 480))));

    row("boxes of no interest", Whole,
        box("uuid", "u") + largeBox("mdat", QByteArray(99, 'm')) + boxClaiming(0, "mdat") +
            movie(box(QByteArray("mvh\0", 4)) + small));
    row("64-bit sizes", "640x480, 10 s, 0 fps, coding 0",
        largeBox("moov", header + largeBox("trak", bentVideo({}).mid(8))));
    const QByteArray goingOn = sampleSizes(300).mid(8) + sampleDescription({"avc1"});
    row("sample sizes are stepped over", "640x480, 10 s, 30 fps, coding 0",
        movie(bentVideo(tables(box("stsz", goingOn)))));
    row("sample sizes too short for their fields", Whole,
        movie(bentVideo(tables(box("stsz", QByteArray(8, '\0')) + sampleDescription({"avc1"}) +
                               sampleSizes(300)))));
    row("header box too small for its fields", Whole,
        box("moov", boxClaiming(8, "mvhd", header.mid(8)) + small));

    // Times of 64 bits are read as twice as many of 32.
    const QByteArray times = big32(0) + big32(7) + big32(100) + big32(7000) + big32(1000);
    row("movie header of version 1", "0x0, 70 s, 0 fps, coding 0",
        box("moov", box("mvhd", big32(0x1000000) + times + big64(10000) + QByteArray(80, '\0'))));
}

void TestMp4Parser::facts()
{
    QFETCH(QByteArray, bytes);
    QTEST(factsOf(*parse(bytes)), "expected");
}

void TestMp4Parser::creationTime()
{
    const auto created = [this](const QByteArray &tracks) {
        return parse(movie(tracks))->createDate;
    };
    const auto secondsTo = [](const QDate &date) {
        return quint32(QDate(1904, 1, 1).daysTo(date) * 86400);
    };
    const QDate winter(2026, 1, 14);
    const QDate summer(2026, 7, 14);
    QVERIFY(!created(carrier("text", "t", {})).isValid());
    QCOMPARE(created(video(320, 1) + video(640, secondsTo(winter)) + video(640, 2)),
             QDateTime(winter, QTime(0, 0)));
    QCOMPARE(created(video(640, secondsTo(summer))), QDateTime(summer, QTime(1, 0))); // put forward
}

void TestMp4Parser::schemes_data()
{
    QTest::addColumn<int>("scheme");

    for (int scheme : {1, 2, 3, 4, 6})
        QTest::addRow("scheme %d", scheme) << scheme;
}

void TestMp4Parser::schemes()
{
    QFETCH(int, scheme);
    for (int count : {0, 3, scheme == 3 ? 20 : 5000}) {
        const auto parser = parse(recording(scheme, count, {videoTrack(640, 480, 300)}));
        QCOMPARE(parser->gpsFormat, scheme);
        QCOMPARE(parser->gpsCount, quint32(count + 1));
        compare(samplesOf(*parser), ride(count));
        QCOMPARE(factsOf(*parser), Whole);
    }
    QByteArray grafted = recording(0, 0, {});
    const bool canBeGrafted = scheme == 2 || scheme == 4;
    QCOMPARE(graftTelemetry(grafted, ride(3), scheme), canBeGrafted);
    compare(samplesOf(*parse(grafted)), ride(canBeGrafted ? 3 : 0));
}

void TestMp4Parser::marks()
{
    const QByteArray block = QByteArray(6, '\0') + ride(1).first().encoded();
    const auto found = [&block](int distance, const QByteArray &mark) {
        QByteArray chunk = QByteArray(0x40004, '\0') + "freeGPS " + block; // the last to be tried
        chunk.replace(distance, mark.size() + block.size(), mark + block);
        return box("mdat", chunk) + movie(carrier("soun", "s", {8, 8}) + video(640));
    };
    const QVector<QPair<QByteArray, quint32>> rows{{found(0x10004, "freeGPSx"), 0x10004},
                                                   {found(0x20004, "freeGPS "), 0x20004},
                                                   {found(0x10004, "freeGPx "), 0x40004}};
    for (const auto &[bytes, distance] : rows) {
        const auto parser = parse(bytes);
        QCOMPARE(parser->gpsExtraOffset, distance);
        compare(samplesOf(*parser), ride(1));
        QCOMPARE(factsOf(*parser), Whole); // of the track behind: the probe went back
    }
}

void TestMp4Parser::telemetryTracks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<quint32>("count");

    const auto named = [](const QByteArray &type, const QByteArray &name) {
        return movie(carrier(type, name, {0, 0}));
    };
    const QByteArray ext = carrier("data", "Ambarella EXT", {0, 0, 0});
    const QByteArray gps = carrier("meta", "GPS", {0, 0});
    const QByteArray table = big32(0) + big32(5);
    const QByteArray gps0 = box("gps0", QByteArray(311 * 7 + 310, '\x5C'));

    QTest::newRow("EXT in any case, and GPS") << named("meta", "my gps AMBARELLA ext.") << 1 << 2u;
    QTest::newRow("GPS, not quite EXT") << named("meta", "A gPs, Ambarella EX") << 6 << 2u;
    QTest::newRow("EXT behind GPS") << movie(gps + ext) << 1 << 3u;
    QTest::newRow("GPS of a text track") << named("text", "gps") << 0 << 0u;
    QTest::newRow("table behind EXT") << movie(ext + box("gps ", table)) << 2 << 5u;
    QTest::newRow("table is not stepped over") << movie(box("gps ", table + ext)) << 1 << 3u;
    QTest::newRow("GPS0 behind EXT, the rest is no block") << movie(ext) + gps0 << 4 << 7u;
    QTest::newRow("GPS0 is not stepped over") << box("gps0", movie(ext)) << 1 << 3u;
    QTest::newRow("64-bit chunk offsets") << movie(gps).replace("stco", "co64") << 6 << 0u;
}

void TestMp4Parser::telemetryTracks()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QTEST(parser->gpsFormat, "scheme");
    QTEST(parser->gpsCount, "count");
}

void TestMp4Parser::samplesEnd()
{
    const auto parser = parse(box("moov"), 20000000 - 8);
    GpsData sample;
    parser->gpsCount = 5000000; // fills the file
    for (int scheme : {0, 9, 1}) {
        parser->gpsFormat = scheme;
        QCOMPARE(parser->getGpsData(999999, sample), scheme == 1);
    }
    QVERIFY(!parser->getGpsData(1000000, sample));
    QVERIFY(!parser->getGpsData(-1, sample));
    QCOMPARE(QByteArray(sample.time), QByteArray());
    parser->gpsCount = 5000001;
    QVERIFY(!parser->getGpsData(0, sample));
}

void TestMp4Parser::zeroFilled()
{
    const QByteArray open =
        QByteArray(4096, '\0') + largeBoxClaiming(5ull << 30, "moov", movieHeader(1000, 10000));
    for (qint64 zeros : {8, 12, (1 << 20) + 4, (1 << 20) + 8}) {
        // If its header begins in the zeros, the track has no size.
        QCOMPARE(factsOf(*parse(open, zeros, video(640))), zeros % 8 == 0 ? Whole : DurationOnly);
    }
}

void TestMp4Parser::debugLines()
{
    QLoggingCategory::setFilterRules("*.debug=true");
    for (const char *line :
         {"^fileName: *.*recording\\.mp4", "^videoInfo: *640 +480 +10 +4$", "^videoDecode: *1$"})
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(line));
    parse(recording(6, 3, {videoTrack(640, 480, 300)}));
    for (const QString &name : {mDir.filePath("absent.mp4"), mDir.path()}) {
        const QString line = "^Mp4Parser open file error, file: *\"" + name;
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(line));
        Mp4Parser parser(name);
        QCOMPARE(factsOf(parser), QString("0x0, 0 s, 0 fps, coding 0"));
        QVERIFY(samplesOf(parser).isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestMp4Parser)
#include "tst_mp4parser.moc"
