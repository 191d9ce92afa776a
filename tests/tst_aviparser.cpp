// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviparser.h"
#include "aviwriter.h"
#include "recordingwriter.h"

#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace Avi;

namespace {
constexpr quint32 InventedSize = 0xFFFFFFF0;
const QString Whole = QStringLiteral("640x480, 10 s, 0 fps, coding 0");
const QString Nothing = QStringLiteral("0x0, 0 s, 0 fps, coding 0");

QString factsOf(const AVIParser &parser)
{
    return QStringLiteral("%1x%2, %3 s, %4 fps, coding %5")
        .arg(parser.width)
        .arg(parser.height)
        .arg(parser.duration)
        .arg(double(parser.frameRate))
        .arg(parser.decodeType);
}

const QByteArray &header()
{
    static const QByteArray chunk = mainHeader(40000, 250, 640, 480);
    return chunk;
}

/** A recording whose list "movi" is @p movie, with its header. */
QByteArray recording(const QByteArray &movie)
{
    return riff(list("hdrl", header()) + movie);
}

/** A sample other than those of all other numbers. */
TelemetryBlock rideSample(int index)
{
    TelemetryBlock sample;
    sample.time = QByteArray::number(Q_INT64_C(20260314100000) + index);
    sample.setSpeed(index % 1000);
    return sample;
}

QList<TelemetryBlock> ride(int count)
{
    QList<TelemetryBlock> samples;
    for (int i = 0; i < count; ++i)
        samples.append(rideSample(i));
    return samples;
}

AviWriter writerOf(int scheme, int sampleCount)
{
    AviWriter writer;
    writer.setTelemetry(scheme, ride(sampleCount));
    return writer;
}

QList<GpsData> samplesOf(AVIParser &parser)
{
    QList<GpsData> samples;
    GpsData sample;
    while (parser.getGpsData(samples.size(), sample))
        samples.append(sample);
    return samples;
}

void compare(const GpsData &sample, int index)
{
    QCOMPARE(sample.id, index);
    QCOMPARE(QByteArray(sample.time), rideSample(index).time);
    QCOMPARE(sample.speed, rideSample(index).speed.toInt());
}

void compare(const QList<GpsData> &samples, int count)
{
    QCOMPARE(samples.size(), count);
    for (int i = 0; i < count && !QTest::currentTestFailed(); ++i)
        compare(samples.at(i), i);
}
} // namespace

class TestAviParser : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void facts_data();
    void facts();
    void withoutHeaders_data();
    void withoutHeaders();
    void schemes_data();
    void schemes();
    void samplesOutOfOrder();
    void trailers_data();
    void trailers();
    void soundChunks_data();
    void soundChunks();
    void movieLists_data();
    void movieLists();
    void grafts();
    void cutAnywhere();

private:
    QString path() const { return mDir.filePath("recording.avi"); }
    std::unique_ptr<AVIParser> parse(const QByteArray &bytes);

    QTemporaryDir mDir;
};

void TestAviParser::init()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

std::unique_ptr<AVIParser> TestAviParser::parse(const QByteArray &bytes)
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("No recording to test with");
    file.close();
    return std::make_unique<AVIParser>(path());
}

void TestAviParser::facts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QString &expected, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << expected;
    };
    const auto headed = [](const QByteArray &mainHeaderChunk) {
        return riff(list("hdrl", mainHeaderChunk));
    };
    row("headers alone", Whole, headed(header()));
    row("duration is cut", "1920x1080, 9 s, 0 fps, coding 0",
        headed(mainHeader(33333, 300, 1920, 1080)));
    // 300000 frames of 33367 us are 10010100000 us, more than 32 bits hold.
    row("product of 64 bits", "640x480, 10010 s, 0 fps, coding 0",
        headed(mainHeader(33367, 300000, 640, 480)));

    for (quint32 size : {1u, 39u, 57u, InventedSize})
        QTest::addRow("main header claims %u bytes", size)
            << headed(chunkClaiming(size, "avih", header().mid(8))) << Whole;
    const QByteArray high = headed(mainHeader(40000, 250, 640, 1080)); // 1080 is 0x438
    const int picture = high.indexOf("avih") + 8 + 32;
    row("file ends in the height", "640x56, 10 s, 0 fps, coding 0", high.left(picture + 5));
    row("file ends before the picture", "0x0, 10 s, 0 fps, coding 0", high.left(picture));

    const QByteArray unit = listClaiming(InventedSize, "INFO");
    const QByteArray smallUnit = chunkClaiming(InventedSize, "JUNK");
    row("units are stepped over by their headers", Whole,
        riff(unit + listClaiming(0, "hdrl") + unit + listClaiming(5, "hdrl") + smallUnit +
             chunkClaiming(0, "avih") + header()));
    row("header list after half a unit", Nothing, riff(smallUnit + list("hdrl", header())));
    row("main header after half a unit", Nothing, riff(list("hdrl", "half" + header())));
}

void TestAviParser::facts()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QTEST(factsOf(*parser), "expected");
    QVERIFY(!parser->createDate.isValid());
    QVERIFY(samplesOf(*parser).isEmpty());
}

void TestAviParser::withoutHeaders_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray whole = writerOf(7, 3).encoded();
    const auto bent = [&whole](const QByteArray &code, int offset, const QByteArray &bytes) {
        return QByteArray(whole).replace(whole.indexOf(code) + offset, bytes.size(), bytes);
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not RIFF") << bent("RIFF", 0, "RIFX");
    QTest::newRow("RIFF of another form") << bent("AVI ", 0, "AVIX");
    QTest::newRow("RIFF without size") << bent("RIFF", 4, little32(0));
    QTest::newRow("header list of another type") << bent("hdrl", 0, "hdrL");
    QTest::newRow("header list without size") << bent("hdrl", -4, little32(0));
    QTest::newRow("main header with another id") << bent("avih", 0, QByteArray("avi\0", 4));
    QTest::newRow("main header without size") << bent("avih", 4, little32(0));
}

void TestAviParser::withoutHeaders()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QCOMPARE(factsOf(*parser), Nothing);
    QCOMPARE(parser->gpsFormat, 0);
    QVERIFY(samplesOf(*parser).isEmpty());
}

void TestAviParser::schemes_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("count");

    for (int count : {0, 1, 100, 5000})
        QTest::addRow("block of %d entries", count + 1) << 7 << count;
    for (int count : {0, 1, 49})
        QTest::addRow("%d sound chunks", count + 1) << 8 << count;
}

void TestAviParser::schemes()
{
    QFETCH(int, scheme);
    QFETCH(int, count);
    for (int junkSize : {0, 12, 19}) { // "JUNK" and its padding are a multiple of 4
        for (int odd : {0, 1}) {
            AviWriter writer = writerOf(scheme, count);
            writer.junkSize = junkSize;
            writer.videoChunkSize = 332 + odd;
            writer.soundChunkExtra = odd;
            const auto parser = parse(writer.encoded());
            QCOMPARE(factsOf(*parser), Whole);
            QCOMPARE(parser->gpsFormat, scheme);
            QCOMPARE(parser->gpsCount, quint32(count + 1));
            compare(samplesOf(*parser), count);
        }
    }
}

void TestAviParser::samplesOutOfOrder()
{
    for (int scheme : {7, 8}) {
        const auto parser = parse(writerOf(scheme, 49).encoded());
        GpsData sample;
        for (int index : {30, 48, 0, 29, 30}) {
            QVERIFY(parser->getGpsData(index, sample));
            compare(sample, index);
        }
        for (int index : {49, -1})
            QVERIFY(!parser->getGpsData(index, sample));
    }
}

void TestAviParser::trailers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("sampleCount");

    const QByteArray sound = writerOf(8, 2).encoded();
    const auto ending = [&sound](const QByteArray &block, quint32 trailer) {
        return sound + block + Mp4::big32(trailer);
    };
    const quint32 size = quint32(sound.size());
    const QByteArray block = "GPSL" + Mp4::big32(4) + QByteArray(4 * 312, '\x5C');
    QTest::newRow("to the block") << ending(block, size) << 7 << 3;
    QTest::newRow("to another code")
        << ending(QByteArray(block).replace("GPSL", "GPSl"), size) << 8 << 2;
    QTest::newRow("beside the block") << ending(block, size + 1) << 8 << 2;
    QTest::newRow("to its own last byte") << ending(block, size + 8 + 4 * 312 + 3) << 8 << 2;
    QTest::newRow("to the end") << ending(block, size + 8 + 4 * 312 + 4) << 8 << 2;
    QTest::newRow("far behind the end") << ending(block, ~0u) << 8 << 2;
    QTest::newRow("little-endian") << ending(block, qbswap(size)) << 8 << 2;
    QTest::newRow("none") << sound + block << 8 << 2;
    QTest::newRow("to a count that no file holds")
        << ending(QByteArray(block).replace(4, 4, Mp4::big32(~0u)), size) << 7 << 0;
}

void TestAviParser::trailers()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QTEST(parser->gpsFormat, "scheme");
    QTEST(samplesOf(*parser).size(), "sampleCount");
    QCOMPARE(factsOf(*parser), Whole);
}

void TestAviParser::soundChunks_data()
{
    QTest::addColumn<QByteArray>("movie");
    QTest::addColumn<quint32>("count");

    const auto row = [](const char *name, quint32 count, const QByteArray &movieList) {
        QTest::newRow(name) << movieList << count;
    };
    const auto movie = [](const QByteArray &chunks) { return list("movi", chunks); };
    const QByteArray sound = soundChunk("even");
    const QByteArray oddSound = soundChunk("odd");
    row("none", 0, movie(chunk("00dc", "odd") + chunk("01WB") + chunk("00wb")));
    row("empty list", 0, movie({}));
    row("odd ones without padding", 4, movie(oddSound + oddSound + sound + oddSound));
    row("all others with padding", 2,
        movie(chunk("00dc", "odd") + oddSound + chunk("ix01", "o") + chunk("JUNK") + oddSound));
    // Taken for a chunk whose id begins with the pad byte and whose size is large.
    row("a padded one leads astray", 1, movie(chunk("01wb", "odd") + sound));
    row("an unpadded other one leads astray", 1,
        movie(oddSound + chunkClaiming(3, "00dc", "odd") + sound));
    row("those within a list do not count", 1, movie(list("rec ", sound + sound) + sound));

    const QByteArray two = sound + oddSound; // 12 and 11 bytes
    for (quint32 size : {0u, 4u})
        QTest::addRow("list claims %u bytes", size) << listClaiming(size, "movi", two) << 0u;
    row("list ends where a chunk does", 1, listClaiming(4 + 12, "movi", two));
    row("list ends in a chunk, which counts", 2, listClaiming(4 + 12 + 1, "movi", two));
    row("list goes on behind the file", 2, listClaiming(0x7FFFFFFF, "movi", two));
    row("file ends behind an id", 3, listClaiming(InventedSize, "movi", two + "01wb"));
    for (quint32 size : {~0u, ~0u - 7, 0x80000000u}) {
        const QByteArray large = chunkClaiming(size, "01wb") + chunkClaiming(size, "00dc");
        QTest::addRow("chunk claims %u bytes", size)
            << listClaiming(InventedSize, "movi", sound + large + sound) << 2u;
        QTest::addRow("other chunk claims %u bytes", size)
            << listClaiming(InventedSize, "movi", sound + large.mid(8) + sound) << 1u;
    }
}

void TestAviParser::soundChunks()
{
    QFETCH(QByteArray, movie);
    const std::clock_t start = std::clock();
    const auto parser = parse(recording(movie));
    QVERIFY2(std::clock() - start < CLOCKS_PER_SEC, "Walks on behind the end of the file");
    QCOMPARE(parser->gpsFormat, 8);
    QTEST(parser->gpsCount, "count");
    QCOMPARE(factsOf(*parser), Whole);
    if (parser->gpsCount == 0)
        QVERIFY(samplesOf(*parser).isEmpty());
}

void TestAviParser::movieLists_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<quint32>("count");

    const QByteArray three = list("movi", soundChunk({}).repeated(3));
    const QByteArray one = list("movi", soundChunk({}));
    const QByteArray listId = "LIST";
    QTest::newRow("none") << list("INFO", "text") << 0 << 0u;
    QTest::newRow("the first of two") << three + one << 8 << 3u;
    QTest::newRow("behind another list") << list("INFO", "text") + three << 8 << 3u;
    QTest::newRow("within junk") << chunk("JUNK", "1234" + three) + one << 8 << 3u;
    QTest::newRow("at an odd multiple of 2") << chunk("JUNK", "12" + three + "12") + one << 8 << 1u;
    QTest::newRow("another type") << listId + little32(99) + "movI" + one << 8 << 1u;
    // Size and type of a list are passed over with its id: here they are an id and a size.
    QTest::newRow("a list's size is no id")
        << listId + listId + little32(99) + "movi" + one << 8 << 1u;
}

void TestAviParser::movieLists()
{
    QFETCH(QByteArray, content);
    const auto parser = parse(recording(content));
    QTEST(parser->gpsFormat, "scheme");
    QTEST(parser->gpsCount, "count");
    QCOMPARE(factsOf(*parser), Whole);
}

void TestAviParser::grafts()
{
    QByteArray grafted = writerOf(8, 2).encoded();
    for (int scheme : {2, 4, 8}) // those of other containers, and one that takes a new recording
        QVERIFY(!graftTelemetry(grafted, ride(3), scheme));
    QVERIFY(graftTelemetry(grafted, ride(3), 7));
    compare(samplesOf(*parse(grafted)), 3);
    QByteArray other = RecordingWriter().encoded();
    QVERIFY(!graftTelemetry(other, ride(3), 7));
    QCOMPARE(other, RecordingWriter().encoded());
}

void TestAviParser::cutAnywhere()
{
    const QByteArray bytes = writerOf(7, 2).encoded();
    const int headerEnd = bytes.indexOf("avih") + 8 + 40;
    compare(samplesOf(*parse(bytes)), 2);
    for (int length = bytes.size() - 1; length >= 0; --length) {
        QVERIFY(QFile::resize(path(), length));
        AVIParser cut(path());
        const QByteArray where = "cut to " + QByteArray::number(length);
        QVERIFY2(samplesOf(cut).isEmpty(), where);
        // The last two bytes of the height are zeros in any case.
        QVERIFY2((factsOf(cut) == Whole) == (length >= headerEnd - 2), where);
    }
}

QTEST_GUILESS_MAIN(TestAviParser)
#include "tst_aviparser.moc"
