// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviparser.h"
#include "aviwriter.h"
#include "recordingwriter.h"
#include "smallrecordings.h"

#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtTest>

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

QByteArray header()
{
    return mainHeader(40000, 250, 640, 480);
}

AviWriter writerOf(int scheme, int sampleCount)
{
    AviWriter writer;
    writer.setTelemetry(scheme, ride(sampleCount));
    return writer;
}

int sampleCountOf(AVIParser &parser)
{
    int count = 0;
    GpsData sample;
    while (parser.getGpsData(count, sample))
        ++count;
    return count;
}

void compareSample(AVIParser &parser, int index, const TelemetryBlock &expected)
{
    GpsData sample;
    QVERIFY(parser.getGpsData(index, sample));
    QCOMPARE(sample.id, index);
    QCOMPARE(QByteArray(sample.time), expected.time);
    QCOMPARE(sample.speed, expected.speed.toInt());
}
} // namespace

class TestAviParser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("*.debug=false"); }
    void facts_data();
    void facts();
    void schemes_data();
    void schemes();
    void trailers_data();
    void trailers();
    void movieLists_data();
    void movieLists();

private:
    std::unique_ptr<AVIParser> parse(const QByteArray &bytes);

    QTemporaryDir mDir;
};

std::unique_ptr<AVIParser> TestAviParser::parse(const QByteArray &bytes)
{
    QFile file(mDir.filePath("recording.avi"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("No recording to test with");
    file.close();
    return std::make_unique<AVIParser>(file.fileName());
}

void TestAviParser::facts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QString &expected, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << expected;
    };
    const QByteArray whole = riff(list("hdrl", header()));
    row("headers alone", Whole, whole);
    row("duration is cut", "1920x1080, 9 s, 0 fps, coding 0",
        riff(list("hdrl", mainHeader(33333, 300, 1920, 1080))));
    // 300000 frames of 33367 us are 10010100000 us, more than 32 bits hold.
    row("product of 64 bits", "640x480, 10010 s, 0 fps, coding 0",
        riff(list("hdrl", mainHeader(33367, 300000, 640, 480))));
    row("main header claims too little", Whole,
        riff(list("hdrl", chunkClaiming(1, "avih", header().mid(8)))));

    const QByteArray unit = listClaiming(InventedSize, "INFO");
    const QByteArray smallUnit = chunkClaiming(InventedSize, "JUNK");
    row("units are stepped over by their headers", Whole,
        riff(unit + listClaiming(0, "hdrl") + unit + listClaiming(5, "hdrl") + smallUnit +
             chunkClaiming(0, "avih") + header()));
    row("header list after half a unit", Nothing, riff(smallUnit + list("hdrl", header())));
    row("main header after half a unit", Nothing, riff(list("hdrl", "half" + header())));

    row("empty", Nothing, {});
    row("RIFF of another form", Nothing, QByteArray(whole).replace("AVI ", "AVIX"));
    row("RIFF without size", Nothing, QByteArray(whole).replace(4, 4, little32(0)));
    row("header list of another type", Nothing, QByteArray(whole).replace("hdrl", "hdrL"));
    row("main header of another id", Nothing, QByteArray(whole).replace("avih", "aviH"));
}

void TestAviParser::facts()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QTEST(factsOf(*parser), "expected");
    QVERIFY(!parser->createDate.isValid());
    QCOMPARE(parser->gpsFormat, 0);
    QCOMPARE(sampleCountOf(*parser), 0);
}

void TestAviParser::schemes_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("count");

    for (int count : {0, 5000})
        QTest::addRow("block of %d entries", count + 1) << 7 << count;
    for (int count : {0, 49})
        QTest::addRow("%d sound chunks", count + 1) << 8 << count;
}

void TestAviParser::schemes()
{
    QFETCH(int, scheme);
    QFETCH(int, count);
    const QList<TelemetryBlock> samples = ride(count);
    for (int odd : {0, 1}) {
        AviWriter writer = writerOf(scheme, count);
        writer.junkSize = odd * 19; // "JUNK" and its padding are a multiple of 4
        writer.videoChunkSize = 332 + odd;
        writer.soundChunkExtra = odd;
        const auto parser = parse(writer.encoded());
        QCOMPARE(factsOf(*parser), Whole);
        QCOMPARE(parser->gpsFormat, scheme);
        QCOMPARE(parser->gpsCount, quint32(count + 1));
        for (int i = count - 1; i >= 0; i -= 7) // backwards, to what was passed already
            compareSample(*parser, i, samples.at(i));
        for (int i = 0; i < count && !QTest::currentTestFailed(); ++i)
            compareSample(*parser, i, samples.at(i));
        QCOMPARE(sampleCountOf(*parser), count);
    }
}

void TestAviParser::trailers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("sampleCount");

    const QByteArray sound = writerOf(8, 2).encoded();
    const quint32 size = quint32(sound.size());
    const QByteArray block = "GPSL" + Mp4::big32(4) + QByteArray(4 * 312, '\x5C');
    const auto row = [&](const char *name, int scheme, int count, quint32 trailer) {
        QTest::newRow(name) << sound + block + Mp4::big32(trailer) << scheme << count;
    };
    row("to the block", 7, 3, size);
    row("beside the block", 8, 2, size + 1);
    row("to the end", 8, 2, size + quint32(block.size()) + 4);
    QTest::newRow("none") << sound + block << 8 << 2;
}

void TestAviParser::trailers()
{
    QFETCH(QByteArray, bytes);
    const auto parser = parse(bytes);
    QTEST(parser->gpsFormat, "scheme");
    QTEST(sampleCountOf(*parser), "sampleCount");
    QCOMPARE(factsOf(*parser), Whole);
}

void TestAviParser::movieLists_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("scheme");
    QTest::addColumn<quint32>("count");

    const auto row = [](const char *name, quint32 count, const QByteArray &content) {
        QTest::newRow(name) << content << 8 << count;
    };
    const auto movie = [](const QByteArray &chunks) { return list("movi", chunks); };
    const QByteArray sound = soundChunk("even");
    const QByteArray oddSound = soundChunk("odd");
    row("no sound chunks", 0, movie(chunk("00dc", "odd") + chunk("01WB") + chunk("00wb")));
    row("odd ones without padding", 4, movie(oddSound + oddSound + sound + oddSound));
    row("all others with padding", 2,
        movie(chunk("00dc", "odd") + oddSound + chunk("ix01", "o") + chunk("JUNK") + oddSound));
    row("those within a list do not count", 1, movie(list("rec ", sound + sound) + sound));

    const QByteArray two = sound + oddSound; // 12 and 11 bytes
    row("list ends where a chunk does", 1, listClaiming(4 + 12, "movi", two));
    row("list ends in a chunk, which counts", 2, listClaiming(4 + 12 + 1, "movi", two));
    row("list goes on behind the file", 2, listClaiming(InventedSize, "movi", two));

    const QByteArray three = movie(sound.repeated(3));
    const QByteArray one = movie(sound);
    QTest::newRow("none") << list("INFO", "text") << 0 << 0u;
    row("the first of two, behind another list", 3, list("INFO", "text") + three + one);
    row("within junk", 3, chunk("JUNK", "1234" + three) + one);
    row("at an odd multiple of 2", 1, chunk("JUNK", "12" + three + "12") + one);
    // Size and type of a list are passed over with its id: here they are an id and a size.
    row("a list's size is no id", 1, "LISTLIST" + little32(99) + "movi" + one);
}

void TestAviParser::movieLists()
{
    QFETCH(QByteArray, content);
    const auto parser = parse(riff(list("hdrl", header()) + content));
    QTEST(parser->gpsFormat, "scheme");
    QTEST(parser->gpsCount, "count");
    QCOMPARE(factsOf(*parser), Whole);
}

QTEST_GUILESS_MAIN(TestAviParser)
#include "tst_aviparser.moc"
