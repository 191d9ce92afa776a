// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviwriter.h"
#include "mediafile.h"
#include "recordingcheck.h"
#include "recordingwriter.h"
#include "smallrecordings.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Kind = RecordingCondition::Kind;
Q_DECLARE_METATYPE(RecordingCondition::Kind)

namespace {

constexpr int Media = 50000; // bytes of pictures

QByteArray zeros(int count)
{
    return QByteArray(count, '\0');
}

const QByteArray FileType = Mp4::box("ftyp", "isom" + zeros(4));

/** A "moov" with a track of pictures, in chunks of 3 samples of 1000 bytes. */
QByteArray movie(const QByteArray &chunkOffsets)
{
    const QByteArray sizes =
        Mp4::box("stsz", zeros(8) + Mp4::big32(6) + Mp4::big32(1000).repeated(6));
    const QByteArray chunks =
        Mp4::box("stsc", zeros(4) + Mp4::big32(1) + Mp4::big32(1) + Mp4::big32(3) + Mp4::big32(1));
    const QByteArray table =
        Mp4::box("stbl", Mp4::sampleDescription({"hvc1"}) + sizes + chunks + chunkOffsets);
    const QByteArray media = Mp4::box("mdia", Mp4::handler("vide", "V") + Mp4::box("minf", table));
    return Mp4::box("moov", Mp4::movieHeader(1000, 1000) +
                                Mp4::box("trak", Mp4::trackHeader(640, 480) + media));
}

QByteArray wideOffset(quint64 offset)
{
    return Mp4::box("co64", zeros(4) + Mp4::big32(1) + Mp4::big64(offset));
}

QByteArray aviHeaders(bool expectsIndex = false, const QByteArray &more = {})
{
    QByteArray header = Avi::mainHeader(40000, 250, 640, 480);
    header[8 + 12] = expectsIndex ? 0x10 : 0;
    return Avi::list("hdrl", header + Avi::videoStream("H264") + more);
}

QByteArray riff(quint32 size, const QByteArray &content)
{
    return Avi::chunkClaiming(size, "RIFF", "AVI " + content);
}

/** OpenDML: the index of indexes that tells of the bytes from @p offset to a hundred behind. */
QByteArray streamIndexedAt(quint32 offset)
{
    const QByteArray entry = Avi::little32(offset) + zeros(4) + Avi::little32(100) + zeros(4);
    return Avi::list("strl",
                     Avi::chunk("indx", Avi::little32(4) + Avi::little32(1) + zeros(16) + entry));
}

} // namespace

class TestRecordingCheck : public QObject
{
    Q_OBJECT

private slots:
    void headers_data();
    void headers();
    void notFiles();
    void cameras();
    void encoded_data();
    void encoded();

private:
    RecordingCondition check(const QByteArray &bytes)
    {
        const QString path = mDir.filePath("recording");
        return saveRecording(path, bytes) ? checkRecording(path) : RecordingCondition();
    }

    QTemporaryDir mDir;
};

void TestRecordingCheck::headers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<qint64>("missing");
    const auto row = [](const char *name, const QByteArray &bytes, Kind kind, qint64 missing = 0) {
        QTest::newRow(name) << bytes << kind << missing;
    };
    row("empty", "", Kind::Empty);
    row("text", "This is no video at all, but a text.", Kind::NotVideo);
    row("zeros", zeros(5000), Kind::NotVideo);
    row("a few bytes", "ftyp", Kind::NotVideo);

    const QByteArray mdat = Mp4::box("mdat", zeros(Media));
    const int first = FileType.size() + 8;
    const QByteArray whole = movie(Mp4::chunkOffsets({quint32(first), quint32(first) + 5000}));
    row("MP4", FileType + mdat + whole, Kind::Whole);
    row("MP4 without moov", FileType + mdat, Kind::NoHeader);
    row("MP4 cut in mdat", FileType + mdat.left(9000), Kind::NoHeader);
    row("MP4 cut in moov", FileType + mdat + whole.chopped(50), Kind::NoHeader);
    row("MP4 of sound only",
        FileType + mdat +
            Mp4::box("moov", Mp4::box("trak", Mp4::box("mdia", Mp4::handler("soun", "")))),
        Kind::NotVideo);
    row("MP4 whose moov is broken",
        FileType + mdat + Mp4::box("moov", Mp4::boxClaiming(9000, "trak", zeros(40))),
        Kind::NoHeader);
    row("MP4 with open mdat", FileType + whole + Mp4::boxClaiming(0, "mdat", zeros(Media)),
        Kind::Whole);
    row("MP4 with a tail of text", FileType + mdat + whole + "a tail of text", Kind::Whole);
    row("MP4 with a huge mdat, samples whole",
        FileType + whole + Mp4::boxClaiming(0x7FFFFFFF, "mdat", zeros(Media)), Kind::Whole);
    const QByteArray head = FileType + movie(wideOffset(60000));
    const QByteArray cut = head + Mp4::boxClaiming(70000, "mdat", zeros(60000 - head.size() - 8));
    QCOMPARE(cut.size(), 60000);
    row("MP4 cut before its last chunk", cut, Kind::CutOff, 3000);
    row("MP4 cut in its last chunk", cut + zeros(2999), Kind::CutOff, 1);
    row("MP4 that has its last chunk", cut + zeros(3000), Kind::Whole);
    row("MP4 of an invented offset", FileType + movie(wideOffset(~quint64(0) - 5)) + mdat,
        Kind::CutOff);
    row("MP4 of fragments, cut",
        FileType + movie(Mp4::chunkOffsets({})) + mdat + Mp4::boxClaiming(1008, "mdat", zeros(990)),
        Kind::CutOff, 10);
    row("MP4 of fragments, of an invented size",
        FileType + movie(Mp4::chunkOffsets({})) + Mp4::largeBoxClaiming(~quint64(0) - 3, "mdat"),
        Kind::CutOff);
    row("MP4 whose table counts too much",
        FileType + movie(Mp4::box("stco", zeros(4) + Mp4::big32(0xFFFFFFFF))) + mdat, Kind::Whole);

    const QByteArray movi = Avi::list("movi", zeros(Media));
    const QByteArray index = Avi::chunk("idx1", zeros(160));
    const QByteArray content = aviHeaders(true) + movi + index;
    const quint32 size = quint32(content.size() + 4);
    row("AVI", riff(size, content), Kind::Whole);
    for (const quint32 odd : {quint32(0), 0xFFFFFFFFu, 0x7FFFFFFFu, size + 500, size + 5000000})
        QTest::addRow("AVI of RIFF size %u", odd) << riff(odd, content) << Kind::Whole << qint64(0);
    row("AVI, open to its end", riff(0, aviHeaders(true) + Avi::listClaiming(0, "movi", zeros(99))),
        Kind::Whole);
    row("AVI, never finished",
        riff(0xFFFFFFFF, aviHeaders() + Avi::listClaiming(0xFFFFFFFF, "movi", zeros(99))),
        Kind::Whole);
    row("AVI, sizes a sector off",
        riff(size + 512, aviHeaders() + Avi::listClaiming(Media + 516, "movi", zeros(Media))),
        Kind::Whole);
    row("AVI cut in movi", riff(size, content).chopped(30000), Kind::CutOff, 30000);
    row("AVI cut in movi, RIFF unset", riff(0, content).chopped(30000), Kind::CutOff,
        30000 - index.size());
    row("AVI cut before its index", riff(size + 9000, aviHeaders(true) + movi), Kind::CutOff,
        9000 + index.size());
    row("AVI cut before movi", riff(size, aviHeaders()), Kind::CutOff, movi.size() + index.size());
    row("AVI, a list beyond a whole RIFF",
        riff(quint32(aviHeaders().size()) + 4 + Media,
             aviHeaders() + Avi::listClaiming(0x10000000, "movi", zeros(Media))),
        Kind::Whole);
    row("AVI without headers", riff(size, movi + index), Kind::NoHeader);
    row("AVI without streams",
        riff(size, Avi::list("hdrl", Avi::mainHeader(40000, 250, 640, 480)) + movi),
        Kind::NoHeader);
    row("AVI of sound only",
        riff(size,
             Avi::list("hdrl", Avi::list("strl", Avi::chunk("strh", "auds" + zeros(52)))) + movi),
        Kind::NotVideo);
    const QByteArray further = "AVIX" + Avi::list("movi", zeros(Media));
    row("AVI of two RIFFs", riff(size, content) + Avi::chunk("RIFF", further), Kind::Whole);
    row("AVI of two RIFFs, cut", riff(size, content) + Avi::chunk("RIFF", further).chopped(20000),
        Kind::CutOff, 20000);
    const QByteArray indexed = aviHeaders(false, streamIndexedAt(500000)) + movi;
    row("AVI of two RIFFs, the second gone", riff(quint32(indexed.size() + 4), indexed),
        Kind::CutOff, 500100 - 12 - indexed.size());
}

void TestRecordingCheck::headers()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Kind, kind);
    QFETCH(qint64, missing);
    const RecordingCondition condition = check(bytes);
    QCOMPARE(condition.kind, kind);
    QCOMPARE(condition.missingBytes, missing);
    QCOMPARE(condition.wholeBytes, missing > 0 ? bytes.size() + missing : 0);
    const bool isPlayable = kind == Kind::Whole || kind == Kind::CutOff;
    QVERIFY(!isPlayable || condition.coding == (bytes.startsWith("RIFF") ? "H264" : "hvc1"));
    QCOMPARE(condition.telemetry, RecordingCondition::TelemetryUnknown);
}

void TestRecordingCheck::notFiles()
{
    QCOMPARE(checkRecording(mDir.filePath("none.mp4")).kind, Kind::Gone);
    QCOMPARE(checkRecording(mDir.path()).kind, Kind::Gone);
}

/** As cameras lay out their telemetry; cut anywhere, there is an answer. */
void TestRecordingCheck::cameras()
{
    for (const int scheme : TelemetrySchemes) {
        const QByteArray bytes = smallRecording(scheme, ride(3));
        QCOMPARE(check(bytes).kind, Kind::Whole);
        for (int size = 0; size < 3000; size += 37)
            QVERIFY(check(bytes.left(size)).kind != Kind::Unknown);
    }
}

void TestRecordingCheck::encoded_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFastStart");
    QTest::addColumn<Kind>("cutKind");
    QTest::newRow("MP4, moov behind") << "a.mp4" << false << Kind::NoHeader;
    QTest::newRow("MP4, moov before") << "a.mp4" << true << Kind::CutOff;
    QTest::newRow("AVI") << "a.avi" << false << Kind::CutOff;
}

void TestRecordingCheck::encoded()
{
    QFETCH(QString, name);
    QFETCH(bool, isFastStart);
    QFETCH(Kind, cutKind);
    QString path = mDir.filePath(name);
    QVERIFY(makeMediaFile(path, 2));
    if (isFastStart) {
        const QString before = mDir.filePath("before.mp4");
        QCOMPARE(QProcess::execute("ffmpeg", {"-v", "error", "-y", "-i", path, "-c", "copy",
                                              "-movflags", "faststart", before}),
                 0);
        path = before;
    }
    const RecordingCondition whole = checkRecording(path);
    QCOMPARE(whole.kind, Kind::Whole);
    QCOMPARE(whole.coding, name.endsWith("avi") ? QByteArray("MJPG") : QByteArray("avc1"));

    QFile file(path);
    const qint64 size = file.size();
    QVERIFY(file.resize(size / 2));
    const RecordingCondition cut = checkRecording(path);
    QCOMPARE(cut.kind, cutKind);
    // Both ends are told of to the byte.
    QCOMPARE(cut.wholeBytes, cutKind == Kind::CutOff ? size : 0);
    QCOMPARE(cut.missingBytes, cutKind == Kind::CutOff ? size - size / 2 : 0);
}

QTEST_GUILESS_MAIN(TestRecordingCheck)
#include "tst_recordingcheck.moc"
