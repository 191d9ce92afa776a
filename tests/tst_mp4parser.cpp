// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mp4parser.h"
#include "recordingwriter.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace Mp4;

namespace {
constexpr quint32 InventedSize = 0xFFFFFFF0;
const QString Whole = QStringLiteral("640x480, 10 s, 30 fps, coding 1");
const QString Unrated = QStringLiteral("640x480, 10 s, 0 fps, coding 1");
const QString Uncoded = QStringLiteral("640x480, 10 s, 0 fps, coding 0");
const QString DurationOnly = QStringLiteral("0x0, 10 s, 0 fps, coding 0");
const QString Nothing = QStringLiteral("0x0, 0 s, 0 fps, coding 0");

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
QByteArray bentVideo(const QByteArray &media, const QByteArray &handlerBox = handler("vide", "v"))
{
    return box("trak", trackHeader(640, 480) + box("mdia", handlerBox + media));
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

/** @p count samples, each other than all before. */
QList<TelemetryBlock> ride(int count)
{
    QList<TelemetryBlock> samples;
    for (int i = 0; i < count; ++i) {
        samples.append(TelemetryBlock());
        samples.last().time = QByteArray::number(Q_INT64_C(20260314100000) + i);
        samples.last().setSpeed(i % 1000);
    }
    return samples;
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
    void init();
    void facts_data();
    void facts();
    void creationTime();
    void schemes_data();
    void schemes();
    void marks();
    void telemetryTracks_data();
    void telemetryTracks();
    void bentTables();
    void blocksBehindTheEnd();
    void samplesEnd();
    void cutAnywhere();
    void zeroFilled();
    void debugLines();

private:
    QString path() const { return mDir.filePath("recording.mp4"); }
    void write(const QByteArray &bytes);
    std::unique_ptr<Mp4Parser> parse(const QByteArray &bytes);

    QTemporaryDir mDir;
};

void TestMp4Parser::init()
{
    QLoggingCategory::setFilterRules("*.debug=false"); // the walks write thousands of lines
    qputenv("TZ", "Europe/Berlin");                    // neither UTC nor without daylight saving
    tzset();
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

void TestMp4Parser::facts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const auto row = [](const QByteArray &name, const QString &expected, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << expected;
    };
    const QByteArray header = movieHeader(1000, 10000);
    const QByteArray small = video(640);
    const QByteArray large = video(4000);
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
    row("64-bit sizes", Uncoded, largeBox("moov", header + largeBox("trak", bentVideo({}).mid(8))));
    row("no size: not entered", Nothing, boxClaiming(0, "moov") + header);
    for (const QByteArray &bent : {boxClaiming(7, "free"), boxClaiming(InventedSize, "free"),
                                   largeBoxClaiming(8, "free"), largeBoxClaiming(~0ull, "free")})
        row("bent size " + bent.toHex(), Whole, movie(small + bent + large));
    row("child larger than its parent", Whole,
        movie(box("trak", boxClaiming(quint32(8 + large.size()), "free")) + large + small));
    const auto handlerClaiming = [](quint32 size) {
        return boxClaiming(size, "hdlr", handler("vide", "v").mid(8));
    };
    const QByteArray openTrack = bentVideo({}, handlerClaiming(InventedSize)).mid(8);
    row("parents larger than the file", Uncoded,
        boxClaiming(InventedSize, "moov", header + boxClaiming(InventedSize, "trak", openTrack)));
    row("headers too small for their fields", Uncoded,
        box("moov", boxClaiming(8, "mvhd", header.mid(8)) + bentVideo({}, handlerClaiming(8))));
    row("chunk table longer than its box", Unrated,
        movie(bentVideo(tables(box("stco", big32(0) + big32(5)) + sampleSizes(300) +
                               sampleDescription({"avc1"})))));
    const QByteArray goingOn = sampleSizes(300).mid(8) + sampleDescription({"avc1"});
    row("sample sizes are stepped over", "640x480, 10 s, 30 fps, coding 0",
        movie(bentVideo(tables(box("stsz", goingOn)))));
    row("sample description with flags", Uncoded,
        movie(bentVideo(tables(box("stsd", big32(1) + big32(1) + box("avc1"))))));
    row("track header goes on in boxes", Uncoded,
        movie(box("trak", box("tkhd", bentVideo({}).mid(16)))));

    // Times of 64 bits are read as twice as many of 32.
    const QByteArray times = big32(0) + big32(7) + big32(100) + big32(7000) + big32(1000);
    row("movie header of version 1", "0x0, 70 s, 0 fps, coding 0",
        box("moov", box("mvhd", big32(0x1000000) + times + big64(10000) + QByteArray(80, '\0'))));
    row("track header of version 1", DurationOnly,
        movie(box("trak",
                  box("tkhd", big32(0x1000000) + big32(0) + big64(0) + bentVideo({}).mid(28)))));
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
    const QDate begin(1904, 1, 1);
    const QDate winter(2026, 1, 14);
    const QDate summer(2026, 7, 14);
    const quint32 winterTime = quint32(begin.daysTo(winter) * 86400);
    const quint32 summerTime = quint32(begin.daysTo(summer) * 86400);
    QVERIFY(!created(carrier("text", "t", {})).isValid());
    QCOMPARE(created(video(320, 1) + video(640, winterTime) + video(640, 2)),
             QDateTime(winter, QTime(0, 0)));
    QCOMPARE(created(video(640, summerTime)), QDateTime(summer, QTime(1, 0))); // put forward
    QCOMPARE(created(video(640, ~0u)), QDateTime(QDate(2040, 2, 6), QTime(6, 28, 15)));
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
    for (int count : {0, 1, 3, scheme == 3 ? 20 : 5000}) {
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
                                                   {found(0x10004, "freeGPx "), 0x40004},
                                                   {found(0x30004, "freeGPS "), 0x40004}};
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
    const QByteArray sound = carrier("soun", "gps", {0, 0});
    const QByteArray table = big32(0) + big32(5);
    const QByteArray gps0 = box("gps0", QByteArray(311 * 7 + 310, '\x5C'));

    QTest::newRow("EXT in any case, and GPS") << named("meta", "my gps AMBARELLA ext.") << 1 << 2u;
    QTest::newRow("EXT of a sound track") << named("soun", "Ambarella EXT") << 1 << 2u;
    QTest::newRow("GPS, not quite EXT") << named("meta", "A gPs, Ambarella EX") << 6 << 2u;
    QTest::newRow("GPS behind NUL") << named("meta", QByteArray("name\0gps", 8)) << 0 << 0u;
    QTest::newRow("GPS of a text track") << named("text", "gps") << 0 << 0u;
    QTest::newRow("EXT behind GPS") << movie(gps + ext) << 1 << 3u;
    QTest::newRow("GPS behind EXT") << movie(ext + gps) << 6 << 2u;
    QTest::newRow("sound without mark behind EXT") << movie(ext + sound) << 1 << 3u;
    QTest::newRow("table behind EXT") << movie(ext + box("gps ", table)) << 2 << 5u;
    QTest::newRow("table is not stepped over") << movie(box("gps ", table + ext)) << 1 << 3u;
    QTest::newRow("table outside the movie") << box("gps ", table) << 0 << 0u;
    QTest::newRow("GPS0 behind EXT, the rest is no block") << movie(ext) + gps0 << 4 << 7u;
    // The whole header of 8 bytes counts as such, the 64-bit size as blocks.
    QTest::newRow("large GPS0") << largeBox("gps0", QByteArray(311 * 3 - 8, '\x5C')) << 4 << 3u;
    QTest::newRow("GPS0 is not stepped over") << box("gps0", movie(ext)) << 1 << 3u;
    QTest::newRow("GPS0 within the movie") << movie(gps0) << 0 << 0u;
    QTest::newRow("64-bit chunk offsets") << movie(gps).replace("stco", "co64") << 6 << 0u;
}

void TestMp4Parser::telemetryTracks()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QTEST(parser->gpsFormat, "scheme");
    QTEST(parser->gpsCount, "count");
}

void TestMp4Parser::bentTables()
{
    const auto samples = [this](int scheme, const char *type, int offset, quint32 value) {
        QByteArray bytes = recording(scheme, 5, {});
        patchBig32(bytes, type, offset, value);
        return samplesOf(*parse(bytes));
    };
    compare(samples(1, "stco", 4, 0), ride(0));
    compare(samples(1, "stco", 4, 2), ride(1));
    compare(samples(6, "stco", 4, 1000000), ride(0)); // more than the file can hold
    compare(samples(1, "stco", 4, ~0u), ride(0));
    compare(samples(4, "gps0", -8, 318), ride(0)); // less than one block
    compare(samples(4, "gps0", -8, 630), ride(1));
    compare(samples(4, "gps0", -8, 7), ride(0));
    compare(samples(4, "gps0", -8, InventedSize), ride(0));
}

void TestMp4Parser::blocksBehindTheEnd()
{
    QByteArray bytes = recording(4, 3, {});
    bytes.chop(311 - 63); // the speed's first digit is the last byte of the file
    patchBig32(bytes, "gps0", -8, 8 + 311 * 5);
    const auto samples = samplesOf(*parse(bytes));
    QCOMPARE(samples.size(), 4);
    compare(samples.mid(0, 2), ride(2));
    QCOMPARE(QByteArray(samples.at(2).time), ride(3).at(2).time);
    QCOMPARE(samples.at(2).speed, 0);
    QCOMPARE(QByteArray(samples.at(3).time), QByteArray(14, '\x5C')); // zeros without their mask
}

void TestMp4Parser::samplesEnd()
{
    write(box("moov"));
    QVERIFY(QFile::resize(path(), 20000000));
    Mp4Parser parser(path());
    GpsData sample;
    parser.gpsCount = 5000000; // fills the file
    for (int scheme : {-1, 0, 9, 1}) {
        parser.gpsFormat = scheme;
        QCOMPARE(parser.getGpsData(0, sample), scheme == 1);
    }
    for (int index : {1000000, -1}) {
        QVERIFY(parser.getGpsData(999999, sample));
        QVERIFY(!parser.getGpsData(index, sample));
        QCOMPARE(sample.id, 0);
        QCOMPARE(QByteArray(sample.time), QByteArray());
    }
    parser.gpsCount = 5000001;
    QVERIFY(!parser.getGpsData(0, sample));
}

void TestMp4Parser::cutAnywhere()
{
    // A file cut short tells the same as one whose rest is zeros.
    const Track first = videoTrack(640, 480, 300, "hvc1", 3000000000);
    const QByteArray bytes = recording(6, 3, {first, videoTrack(320, 240, 100)});
    const QString zeroed = mDir.filePath("zeroed.mp4");
    write(bytes);
    QVERIFY(QFile::copy(path(), zeroed));
    QFile rest(zeroed);
    QVERIFY(rest.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    bool hadPicture = true;
    for (int length = bytes.size() - 1; length >= 0; --length) {
        QVERIFY(QFile::resize(path(), length) && rest.seek(length) && rest.putChar('\0'));
        Mp4Parser cut(path());
        Mp4Parser padded(zeroed);
        const QByteArray where = "cut to " + QByteArray::number(length);
        QVERIFY2(factsOf(cut) == factsOf(padded), where);
        QVERIFY2(cut.gpsFormat == padded.gpsFormat && cut.gpsCount == padded.gpsCount, where);
        QVERIFY2(cut.createDate == padded.createDate, where);
        QVERIFY2(samplesOf(cut).size() == samplesOf(padded).size(), where);
        QVERIFY2(cut.width == 0 || hadPicture, where);
        hadPicture = cut.width != 0;
    }
    QVERIFY(!hadPicture);
}

void TestMp4Parser::zeroFilled()
{
    const QByteArray open =
        QByteArray(4096, '\0') + largeBoxClaiming(5ull << 30, "moov", movieHeader(1000, 10000));
    for (qint64 gap :
         {8ll, 12ll, 13ll, 65536ll, 65544ll, (1ll << 20) + 4, (1ll << 20) + 8, 1ll << 28}) {
        write(open);
        QVERIFY(QFile::resize(path(), open.size() + gap));
        QFile file(path());
        QVERIFY(file.open(QIODevice::Append));
        file.write(video(640));
        file.close();
        // If its header begins in the zeros, the track has no size.
        QCOMPARE(factsOf(Mp4Parser(path())), gap % 8 == 0 ? Whole : DurationOnly);
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
        QCOMPARE(factsOf(parser), Nothing);
        QVERIFY(samplesOf(parser).isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestMp4Parser)
#include "tst_mp4parser.moc"
