// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviparser.h"
#include "aviwriter.h"
#include "mp4parser.h"
#include "recordingwriter.h"
#include "smallrecordings.h"

#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <ctime>

#if defined(__SANITIZE_ADDRESS__)
#define TALVOR_WITH_ASAN
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TALVOR_WITH_ASAN
#endif
#endif

#ifdef TALVOR_WITH_ASAN
/** Freed memory that the sanitizer keeps back must not count as memory in use. */
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options()
{
    return "quarantine_size_mb=1";
}
#endif

namespace {
constexpr qint64 MostMs = 1000; // of the processor: on a busy machine all takes longer by the clock
constexpr int MostKb = 64 * 1024;
constexpr int Plenty = 1000000;
constexpr int BlockSize = TelemetryBlock::Size;

/** How long the processor has worked for this thread. */
qint64 workedMs()
{
    timespec time = {};
    if (clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time) != 0)
        qFatal("No clock to measure work by");
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

/** How much memory this process has used at most, in KB. */
int peakKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("No process status to measure memory by");
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6, 10).trimmed().split(' ').first().toInt();
}

void forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write("5") != 1)
        qFatal("The peak of used memory cannot be measured anew");
}

/** All that a sample tells but its direction, which depends on the samples before. */
QByteArray digest(const GpsData &sample)
{
    return QByteArray::number(sample.id) + ' ' + sample.time + sample.mark1 + sample.latitudeRef +
           QByteArray::number(sample.latitude, 'g', 17) + sample.longitudeRef +
           QByteArray::number(sample.longitude, 'g', 17) + ' ' + QByteArray::number(sample.speed) +
           ' ' + QByteArray::number(double(sample.gsensorX));
}

/** The places that a sample is read from, and how much of the file has to be there for it. */
struct Place
{
    int entryAt = -1; ///< in the table of positions; -1 without one
    int blockAt = 0;
    int sizeNeeded = 0;
};

/** Where the table of positions has its first entry, -1 without one. */
int tableOf(int scheme, const QByteArray &bytes)
{
    constexpr int versionAndCount = 8;
    if (scheme == 2)
        return bytes.indexOf("gps ") + 4 + versionAndCount;
    if (scheme == 1 || scheme == 3 || scheme == 6)
        return bytes.lastIndexOf("stco") + 4 + versionAndCount;
    return -1;
}

Place placeOf(int scheme, const QByteArray &bytes, const QList<TelemetryBlock> &samples, int i)
{
    Place place;
    place.blockAt = bytes.indexOf(samples.at(i).encoded().left(BlockSize - 1));
    const int table = tableOf(scheme, bytes);
    if (table >= 0) {
        place.entryAt = table + (scheme == 2 ? 8 : 4) * (i + 1);
        place.sizeNeeded = place.entryAt + 4; // the tables follow the blocks
    } else if (scheme == 4) {
        place.sizeNeeded = place.blockAt + BlockSize - 1;
    } else if (scheme == 7) {
        place.sizeNeeded = bytes.size(); // the pointer to the block ends the file
    } else {
        place.sizeNeeded = bytes.indexOf("01wb", place.blockAt) + 4; // the next one is announced
    }
    return place;
}
} // namespace

/** Whatever is wrong with a recording, reading it ends soon, in little memory, and finds what lies
 *  before the damage. */
class TestDamage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); }
    void cutAnywhere_data() { addSchemes(); }
    void cutAnywhere();
    void bentFields_data() { addSchemes(); }
    void bentFields();
    void oneSampleDamaged_data() { addSchemes(); }
    void oneSampleDamaged();
    void damageBehindTelemetry_data();
    void damageBehindTelemetry();
    void endlessStructures_data();
    void endlessStructures();

private:
    void addSchemes();
    void openRecording(int scheme);
    void write(const QString &name, const QByteArray &bytes);
    void overwrite(int offset, const QByteArray &bytes);
    int stepAt(int offset) const;
    QList<QByteArray> samplesFound();
    QString excess() const;

    QTemporaryDir mDir;
    QFile mFile;
    QByteArray mBytes; // of the undamaged recording
    const QList<TelemetryBlock> mRide = ride(2);
    QList<QByteArray> mWhole; // the samples of that
    QList<Place> mPlaces;
    qint64 mLongestMs = 0;
    int mKbAtStart = 0;
};

void TestDamage::addSchemes()
{
    QTest::addColumn<int>("scheme");
    for (int scheme : TelemetrySchemes)
        QTest::addRow("scheme %d", scheme) << scheme;
}

void TestDamage::write(const QString &name, const QByteArray &bytes)
{
    mFile.close();
    mFile.setFileName(mDir.filePath(name));
    if (!mFile.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered))
        qFatal("No file to test with");
    mBytes = bytes;
    overwrite(0, bytes);
    mLongestMs = 0;
    forgetPeak();
    mKbAtStart = peakKb();
}

/** As much of this as lies within the recording. */
void TestDamage::overwrite(int offset, const QByteArray &bytes)
{
    const int held = std::min(bytes.size(), mBytes.size() - offset);
    if (!mFile.seek(offset) || mFile.write(bytes.constData(), held) != held)
        qFatal("No file to test with");
}

/** Makes a recording and reads it undamaged. */
void TestDamage::openRecording(int scheme)
{
    write(QString::fromLatin1(recordingName(scheme)), smallRecording(scheme, mRide));
    mWhole = samplesFound();
    QCOMPARE(mWhole.size(), mRide.size());
    mPlaces.clear();
    for (int i = 0; i < mRide.size(); ++i) {
        QVERIFY(mWhole.at(i).contains(mRide.at(i).time));
        mPlaces.append(placeOf(scheme, mBytes, mRide, i));
    }
}

/** To the next place worth damaging: long runs of zeros, which are padding, are tried here and
 *  there only. */
int TestDamage::stepAt(int offset) const
{
    constexpr int longRun = 400;
    const QByteArray run = mBytes.mid(offset, longRun);
    return run.count('\0') == longRun ? longRun / 2 - 1 : 1;
}

/** Reads the file as the player does; the work is noted. */
QList<QByteArray> TestDamage::samplesFound()
{
    const qint64 before = workedMs();
    std::unique_ptr<ParserObject> walker;
    if (mFile.fileName().endsWith(QLatin1String(".avi")))
        walker = std::make_unique<AVIParser>(mFile.fileName());
    else
        walker = std::make_unique<Mp4Parser>(mFile.fileName());
    QList<QByteArray> samples;
    GpsData sample;
    for (int i = 0; walker->getGpsData(i, sample); ++i) {
        if (i < mRide.size())
            samples.append(digest(sample));
    }
    mLongestMs = std::max(mLongestMs, workedMs() - before);
    return samples;
}

/** What went beyond the limits since the recording was written; empty if nothing did. */
QString TestDamage::excess() const
{
    const int usedKb = peakKb() - mKbAtStart;
    if (mLongestMs <= MostMs && usedKb <= MostKb)
        return QString();
    return QStringLiteral("%1 ms, %2 KB").arg(mLongestMs).arg(usedKb);
}

void TestDamage::cutAnywhere()
{
    QFETCH(int, scheme);
    openRecording(scheme);
    for (int size = mBytes.size(); size >= 0; size -= stepAt(size)) {
        QVERIFY(mFile.resize(size));
        const QList<QByteArray> found = samplesFound();
        for (int i = 0; i < mWhole.size(); ++i) {
            if (size >= mPlaces.at(i).sizeNeeded)
                QCOMPARE(found.value(i), mWhole.at(i));
        }
    }
    QCOMPARE(excess(), QString());
}

/** Every place is taken for a field, as each of the formats would write one. */
void TestDamage::bentFields()
{
    QFETCH(int, scheme);
    openRecording(scheme);
    QList<QByteArray> fields;
    for (quint32 value : {0u, 1u, 7u, 0x80000000u, 0xFFFFFFFFu})
        fields << Mp4::big32(value) << Avi::little32(value);
    const QByteArray largeSizeFollows = Mp4::big32(1) + "abcd";
    for (quint64 value : {0ull, 7ull, 16ull, 1ull << 63, ~0ull})
        fields << largeSizeFollows + Mp4::big64(value);
    const int firstBlock = mPlaces.first().blockAt; // one block is as good as another
    for (int offset = 0; offset < mBytes.size(); offset += stepAt(offset)) {
        if (offset == firstBlock + 4)
            offset += BlockSize - 8;
        for (const QByteArray &field : qAsConst(fields)) {
            overwrite(offset, field);
            samplesFound();
            overwrite(offset, mBytes.mid(offset, field.size()));
        }
    }
    QCOMPARE(excess(), QString());
    QCOMPARE(samplesFound(), mWhole);
}

void TestDamage::oneSampleDamaged()
{
    QFETCH(int, scheme);
    openRecording(scheme);
    for (int damaged = 0; damaged < mPlaces.size(); ++damaged) {
        const Place place = mPlaces.at(damaged);
        QList<QPair<int, QByteArray>> damages = {
            {place.blockAt, QByteArray(BlockSize - 1, '\xFF')}};
        for (quint32 value : {0u, 7u, 0x80000000u, 0xFFFFFFFFu}) {
            if (place.entryAt >= 0)
                damages.append({place.entryAt, Mp4::big32(value)});
        }
        for (const auto &damage : qAsConst(damages)) {
            overwrite(damage.first, damage.second);
            QList<QByteArray> found = samplesFound();
            QCOMPARE(found.size(), mWhole.size());
            QVERIFY(found.at(damaged) != mWhole.at(damaged));
            found[damaged] = mWhole.at(damaged);
            QCOMPARE(found, mWhole);
            overwrite(damage.first, mBytes.mid(damage.first, damage.second.size()));
        }
    }
    QCOMPARE(excess(), QString());
}

void TestDamage::damageBehindTelemetry_data()
{
    QTest::addColumn<QByteArray>("tail");
    for (quint32 size : {0u, 1u, 7u, 0x80000000u, 0xFFFFFFFFu}) {
        const QByteArray rest(30, '\0');
        QTest::addRow("box of %u", size) << Mp4::boxClaiming(size, "free", rest);
        QTest::addRow("movie of %u", size) << Mp4::boxClaiming(size, "moov", rest);
        QTest::addRow("list of %u", size) << Avi::listClaiming(size, "movi", rest);
        QTest::addRow("large box of %u", size)
            << Mp4::largeBoxClaiming(quint64(size) << 32, "moov", rest);
    }
    QTest::newRow("text") << QByteArray("The end of this file was written by something else.");
}

void TestDamage::damageBehindTelemetry()
{
    QFETCH(QByteArray, tail);
    for (int scheme : TelemetrySchemes) {
        if (scheme == 7)
            continue; // its pointer has to end the file
        openRecording(scheme);
        write(QString::fromLatin1(recordingName(scheme)), mBytes + tail);
        QCOMPARE(samplesFound(), mWhole);
        QCOMPARE(excess(), QString());
    }
}

void TestDamage::endlessStructures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    using namespace Mp4;
    const auto mp4 = [](const char *row, const QByteArray &bytes) {
        QTest::newRow(row) << QStringLiteral("a.mp4") << bytes;
    };
    const QByteArray boxes = box("free").repeated(Plenty);
    const QByteArray zeros(8 * Plenty, '\0');
    mp4("zeros", zeros);
    mp4("boxes", boxes);
    mp4("movies", box("moov").repeated(Plenty));
    mp4("telemetry boxes", box("gps0").repeated(Plenty));
    mp4("boxes in a movie", box("moov", boxes));
    mp4("tracks", box("moov", box("trak").repeated(Plenty)));
    mp4("telemetry tables", box("moov", boxClaiming(8, "gps ").repeated(Plenty)));
    mp4("boxes in a track", box("moov", box("trak", boxes)));
    mp4("zeros in a track", box("moov", box("trak", zeros)));
    const auto inTable = [](const QByteArray &content) {
        const QByteArray table = box("stbl", content);
        return box("moov", box("trak", box("mdia", box("minf", table))));
    };
    mp4("boxes in a sample table", inTable(boxes));
    mp4("chunk tables", inTable(box("stco").repeated(Plenty)));
    mp4("coding names", inTable(box("stsd", box("avc1").repeated(Plenty))));
    mp4("sound tracks",
        box("moov", Track{"soun", "s", 0, 0, 0, {}, 0, {7}}.encoded().repeated(Plenty / 20)));
    QByteArray nested;
    for (const char *type : {"stsd", "stbl", "minf", "mdia", "trak", "moov"})
        nested = boxClaiming(0x7FFFFFFF, type, nested);
    mp4("boxes larger than their parents", nested.repeated(Plenty / 10));
    QByteArray deep(8 * Plenty, '\0');
    for (int depth = 0; depth < Plenty; ++depth)
        deep.replace(8 * depth, 8, boxClaiming(quint32(deep.size() - 8 * depth), "moov"));
    mp4("nested deep", deep);

    using namespace Avi;
    const auto avi = [](const char *row, const QByteArray &content) {
        const QByteArray header = list("hdrl", mainHeader(40000, 250, 640, 480));
        QTest::newRow(row) << QStringLiteral("a.avi") << riff(header + content);
    };
    avi("zeros in an AVI", zeros);
    avi("chunks", list("movi", chunk("00dc").repeated(Plenty)));
    avi("sound chunks", list("movi", soundChunk({}).repeated(Plenty / 4)));
    avi("chunks in a list of 2 GB",
        listClaiming(0x7FFFFFFF, "movi", chunk("00dc").repeated(Plenty)));
    avi("lists", list("junk").repeated(Plenty));
    avi("lists of no type", QByteArray("LIST").repeated(2 * Plenty));
    QTest::newRow("no main header") << QStringLiteral("a.avi") << riff(list("hdrl", zeros));
}

void TestDamage::endlessStructures()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    write(name, bytes);
    samplesFound();
    QCOMPARE(excess(), QString());
}

QTEST_GUILESS_MAIN(TestDamage)
#include "tst_damage.moc"
