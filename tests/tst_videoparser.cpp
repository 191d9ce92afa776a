// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingwriter.h"
#include "videoparser.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {
constexpr int RowId = 7;
constexpr int SampleCount = 5;
constexpr int PollMs = 800;

/** Receives as the playlist does: in the thread of the application, by queued copies. */
class Receiver : public QObject
{
public:
    explicit Receiver(const VideoParser &worker)
    {
        connect(&worker, &VideoParser::videoInfoChanged, this, &Receiver::takeInfo);
        connect(&worker, &VideoParser::gpsDataChanged, this, &Receiver::takeSample);
        connect(&worker, &VideoParser::allGpsDataParserFinished, this, &Receiver::takeList);
    }

    QList<int> ids; ///< with every signal
    QList<VideoInfo> infos;
    QList<int> sampleIds;
    QList<int> listSizes;
    QList<GpsData> list;

private:
    void takeInfo(int id, const VideoInfo &info)
    {
        ids.append(id);
        infos.append(info);
    }
    void takeSample(int id, const GpsData &sample)
    {
        ids.append(id);
        sampleIds.append(sample.id);
    }
    void takeList(int id, const QList<GpsData> &samples)
    {
        ids.append(id);
        listSizes.append(samples.size());
        list = samples;
    }
};
} // namespace

class TestVideoParser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void metaTypes();
    void reportsTheRecording_data();
    void reportsTheRecording();
    void servesTheWholeListOnRequest();
    void servesPositions();
    void withoutTelemetry();
    void startIsDelayed();
    void startEndsThePassBefore();
    void requestStartsAnEndedWorker();
    void stopEndsTheThread();
    void destructorEndsTheThread();

private:
    QUrl recording(const QString &name, int sampleCount, quint16 width = 640);
    void start(const QUrl &url, int id = RowId);
    void awaitList();

    QTemporaryDir mDir;
    std::unique_ptr<VideoParser> mWorker;
    std::unique_ptr<Receiver> mReceiver;
};

void TestVideoParser::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestVideoParser::init()
{
    mWorker = std::make_unique<VideoParser>();
    mReceiver = std::make_unique<Receiver>(*mWorker);
}

void TestVideoParser::cleanup()
{
    mWorker.reset();
    mReceiver.reset();
}

QUrl TestVideoParser::recording(const QString &name, int sampleCount, quint16 width)
{
    QList<TelemetryBlock> samples;
    for (int i = 0; i < sampleCount; ++i) {
        samples.append(TelemetryBlock());
        samples.last().setSpeed(10 + i);
    }
    RecordingWriter writer;
    writer.tracks = {Mp4::videoTrack(width, 480, 300, "hvc1", 86400)};
    writer.setTelemetry(sampleCount == 0 ? 0 : 1, samples);
    const QString path = mDir.filePath(name);
    if (!writer.save(path))
        qFatal("No recording to test with");
    return QUrl::fromLocalFile(path);
}

/** Starts a pass and waits until it has reported the recording. */
void TestVideoParser::start(const QUrl &url, int id)
{
    const int before = mReceiver->infos.size();
    mWorker->start(url, id, 0);
    QTRY_COMPARE(mReceiver->infos.size(), before + 1);
}

/** A round of the worker: what it says of the requests made before comes before the next list. */
void TestVideoParser::awaitList()
{
    const int before = mReceiver->listSizes.size();
    mWorker->updateAllGpsData();
    QTRY_COMPARE(mReceiver->listSizes.size(), before + 1);
}

void TestVideoParser::metaTypes()
{
    for (const char *name : {"VideoInfo", "GpsData", "QList<GpsData>"})
        QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
    const VideoInfo info;
    QCOMPARE(info.width + info.height + info.decodeType, 0);
    QCOMPARE(info.duration, 0u);
    QCOMPARE(info.frameRate, 0.0f);
    QVERIFY(!info.createDate.isValid());
}

void TestVideoParser::reportsTheRecording_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("MP4") << "ride.mp4";
    QTest::newRow("any other suffix") << "ride.avi.mov";
    QTest::newRow("no suffix") << "avi";
    QTest::newRow("signs that URLs escape") << QStringLiteral("Fahrt #1 50%20 süd.MP4");
}

void TestVideoParser::reportsTheRecording()
{
    QFETCH(QString, name);
    start(recording(name, SampleCount));
    const VideoInfo info = mReceiver->infos.first();
    QCOMPARE(info.width, 640);
    QCOMPARE(info.height, 480);
    QCOMPARE(info.duration, 10u);
    QCOMPARE(info.frameRate, 30.0f);
    QCOMPARE(info.decodeType, 2);
    QCOMPARE(info.createDate, QDateTime(QDate(1904, 1, 2), QTime(0, 0)));
    QCOMPARE(mReceiver->ids, QList<int>{RowId});
}

void TestVideoParser::servesTheWholeListOnRequest()
{
    start(recording("ride.mp4", SampleCount));
    mWorker->updateAllGpsData();
    QTRY_COMPARE(mReceiver->listSizes, QList<int>{SampleCount});
    for (int i = 0; i < SampleCount; ++i) {
        QCOMPARE(mReceiver->list.at(i).id, i);
        QCOMPARE(mReceiver->list.at(i).speed, 10 + i);
    }
    awaitList();
    QCOMPARE(mReceiver->listSizes, QList<int>({SampleCount, SampleCount}));
    QCOMPARE(mReceiver->infos.size(), 1);
    QVERIFY(mReceiver->sampleIds.isEmpty());
}

void TestVideoParser::servesPositions()
{
    start(recording("ride.mp4", SampleCount));
    QList<int> expected;
    for (int position : {0, SampleCount - 1, 2}) {
        mWorker->updatePaserGpsDataPosition(position);
        expected.append(position);
        QTRY_COMPARE(mReceiver->sampleIds, expected);
    }
    for (int position : {2, -1, SampleCount, 1 << 30, -5}) {
        mWorker->updatePaserGpsDataPosition(position);
        awaitList();
        QCOMPARE(mReceiver->sampleIds, expected);
    }
    mWorker->updatePaserGpsDataPosition(0);
    expected.append(0);
    QTRY_COMPARE(mReceiver->sampleIds, expected);
    QCOMPARE(mReceiver->ids.count(RowId), mReceiver->ids.size());
}

void TestVideoParser::withoutTelemetry()
{
    const QUrl urls[] = {recording("plain.mp4", 0), QUrl::fromLocalFile(mDir.filePath("absent")),
                         QUrl()};
    for (const QUrl &url : urls) {
        start(url);
        mWorker->updatePaserGpsDataPosition(0);
        awaitList();
    }
    awaitList();
    QCOMPARE(mReceiver->listSizes, QList<int>({0, 0, 0, 0}));
    QVERIFY(mReceiver->sampleIds.isEmpty());
    QCOMPARE(mReceiver->infos.first().width, 640);
    QCOMPARE(mReceiver->infos.last().width, 0);
}

void TestVideoParser::startIsDelayed()
{
    constexpr int delayMs = 400;
    QElapsedTimer timer;
    timer.start();
    mWorker->start(recording("ride.mp4", SampleCount), RowId, delayMs);
    QVERIFY(!mWorker->isRunning());
    QTRY_COMPARE(mReceiver->infos.size(), 1);
    QVERIFY(timer.elapsed() >= delayMs * 95 / 100); // coarse timers may be early by a twentieth
}

void TestVideoParser::startEndsThePassBefore()
{
    start(recording("first.mp4", SampleCount));
    mWorker->updatePaserGpsDataPosition(1);
    QTRY_COMPARE(mReceiver->sampleIds, QList<int>{1});

    int ticks = 0;
    QTimer ticking;
    connect(&ticking, &QTimer::timeout, this, [&ticks] { ++ticks; });
    ticking.start(20);
    QSignalSpy finished(mWorker.get(), &QThread::finished);
    QElapsedTimer timer;
    timer.start();
    start(recording("second.mp4", SampleCount + 2, 1280), RowId + 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY2(ticks >= timer.elapsed() / 100, qPrintable(QString::number(ticks)));

    QCOMPARE(mReceiver->infos.last().width, 1280);
    QCOMPARE(mReceiver->ids.last(), RowId + 1);
    awaitList();
    awaitList();
    QCOMPARE(mReceiver->listSizes.last(), SampleCount + 2);
    // The position ended with the pass that it was meant for.
    QCOMPARE(mReceiver->sampleIds, QList<int>{1});
}

void TestVideoParser::requestStartsAnEndedWorker()
{
    start(recording("ride.mp4", SampleCount));
    mWorker->stopParserGpsData();
    QVERIFY(mWorker->wait(10 * PollMs));
    mWorker->updateAllGpsData();
    QTRY_COMPARE(mReceiver->listSizes, QList<int>{SampleCount});
    QCOMPARE(mReceiver->infos.size(), 2);
    mWorker->updatePaserGpsDataPosition(3);
    QTRY_COMPARE(mReceiver->sampleIds, QList<int>{3});
    QVERIFY(mWorker->isRunning());
}

void TestVideoParser::stopEndsTheThread()
{
    start(recording("ride.mp4", SampleCount));
    QSignalSpy finished(mWorker.get(), &QThread::finished);
    mWorker->stopParserGpsData();
    QVERIFY(finished.wait(10 * PollMs));
    QVERIFY(mWorker->isFinished());
    mWorker->updatePaserGpsDataPosition(0);
    mWorker->stopParserGpsData();
    QCOMPARE(mReceiver->ids.size(), 1);
}

void TestVideoParser::destructorEndsTheThread()
{
    start(recording("ride.mp4", SampleCount));
    QVERIFY(mWorker->isRunning());
    bool isHandled = false;
    QTimer::singleShot(0, this, [&isHandled] { isHandled = true; });
    QSignalSpy finished(mWorker.get(), &QThread::finished);
    QElapsedTimer timer;
    timer.start();
    mWorker.reset();
    QCOMPARE(finished.count(), 1);
    QVERIFY(isHandled);
    QVERIFY(timer.elapsed() < 10 * PollMs);

    // One that is still waiting for its start, and one that never had any.
    mWorker = std::make_unique<VideoParser>();
    mWorker->start(recording("ride.mp4", SampleCount), RowId, 60000);
    mWorker = std::make_unique<VideoParser>();
}

QTEST_GUILESS_MAIN(TestVideoParser)
#include "tst_videoparser.moc"
