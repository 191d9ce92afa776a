// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviwriter.h"
#include "patience.h"
#include "recordingwriter.h"
#include "resourcelimit.h"
#include "videoparser.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <functional>

namespace {
/** Counts the debug lines that begin so while it lives, and calls back from each. */
class LineWatch
{
public:
    LineWatch(const QByteArray &line, const std::function<void()> &onLine)
    {
        watched = line;
        reaction = onLine;
        count = 0;
        QLoggingCategory::setFilterRules("");
        mBefore = qInstallMessageHandler([](auto, const auto &, const QString &text) {
            if (text.startsWith(QLatin1String(watched)) && ++count > 0)
                reaction();
        });
    }
    ~LineWatch() { qInstallMessageHandler(mBefore); }

    static inline std::atomic<int> count{0};

private:
    static inline QByteArray watched;
    static inline std::function<void()> reaction;
    QtMessageHandler mBefore;
};

/** Leaves the process no descriptor to open a file with. */
class NoDescriptors
{
public:
    NoDescriptors()
    {
        for (int taken = 0; (taken = open("/dev/null", O_RDONLY)) >= 0;)
            mTaken.append(taken);
    }
    ~NoDescriptors() { giveBack(); }

    void giveBack()
    {
        while (!mTaken.isEmpty())
            close(mTaken.takeLast());
    }

private:
    const ResourceLimit mFew{RLIMIT_NOFILE, 64};
    QList<int> mTaken;
};
} // namespace

/** Receives as the playlist does: in the thread of the application, by queued copies. */
class TestVideoParser : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reportsRecordings();
    void servesUntilStopped();
    void startEndsThePassBefore();
    void readsFewAtATime();
    void waitsForDescriptors_data();
    void waitsForDescriptors();
    void stoppedWalkEnds_data();
    void stoppedWalkEnds();
    void stoppedDecodingEnds();

private:
    QUrl recording(const QString &name, int sampleCount = 5, quint16 width = 640);
    void expect(const QString &report);

    QTemporaryDir mDir;
    std::unique_ptr<VideoParser> mWorker;
    VideoInfo mInfo;
    QStringList mReports;
};

void TestVideoParser::init()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    mReports.clear();
    mWorker = std::make_unique<VideoParser>();
    const VideoParser *worker = mWorker.get();
    connect(worker, &VideoParser::videoInfoChanged, this, [this](int id, const VideoInfo &info) {
        mInfo = info;
        mReports.append(QStringLiteral("%1: %2 wide").arg(id).arg(info.width));
    });
    connect(worker, &VideoParser::gpsDataChanged, this, [this](int id, const GpsData &gps) {
        mReports.append(QStringLiteral("%1: #%2 %3 km/h").arg(id).arg(gps.id).arg(gps.speed));
    });
    connect(worker, &VideoParser::allGpsDataParserFinished, this,
            [this](int id, const QList<GpsData> &list) {
                const int lastSpeed = list.value(list.size() - 1).speed;
                mReports.append(
                    QStringLiteral("%1: %2, to %3 km/h").arg(id).arg(list.size()).arg(lastSpeed));
            });
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

/** Waits for the next report, which has to be this. */
void TestVideoParser::expect(const QString &report)
{
    QTRY_VERIFY2(!mReports.isEmpty(), qPrintable(report));
    QCOMPARE(mReports.takeFirst(), report);
}

void TestVideoParser::reportsRecordings()
{
    for (const char *type : {"VideoInfo", "GpsData", "QList<GpsData>"})
        QVERIFY2(QMetaType::type(type) != QMetaType::UnknownType, type);
    // Stopped as it reports, the worker ends without a round of waiting.
    connect(mWorker.get(), &VideoParser::videoInfoChanged, mWorker.get(),
            &VideoParser::stopParserGpsData, Qt::DirectConnection);
    constexpr int delayMs = 200;
    for (const char *name : {"ride.avi.mov", "avi", "Fahrt #1 50%20 süd.MP4"}) {
        QElapsedTimer timer;
        timer.start();
        mWorker->start(recording(name), 7, delayMs);
        QVERIFY(!mWorker->isRunning());
        expect("7: 640 wide");
        QVERIFY(timer.elapsed() >= delayMs * 95 / 100); // coarse timers may be early by a twentieth
        QCOMPARE(mInfo.height, 480);
        QCOMPARE(mInfo.duration, 10u);
        QCOMPARE(mInfo.frameRate, 30.0f);
        QCOMPARE(mInfo.decodeType, 2);
        QCOMPARE(mInfo.createDate, QDateTime(QDate(1904, 1, 2), QTime(0, 0)));
    }
    const QString avi = mDir.filePath(QStringLiteral("clip.mp4.aVi"));
    QVERIFY(AviWriter().save(avi));
    mWorker->start(QUrl::fromLocalFile(avi), 8, 0);
    expect("8: 640 wide");
    QVERIFY(!mInfo.createDate.isValid());
    mWorker->start(QUrl(), 7, 3600000); // ended before that comes, with the test
}

void TestVideoParser::servesUntilStopped()
{
    mWorker->updatePaserGpsDataPosition(0);
    mWorker->start(recording("ride.mp4"), 7, 0);
    expect("7: 640 wide");
    expect("7: #0 10 km/h");
    mWorker->updatePaserGpsDataPosition(4);
    expect("7: #4 14 km/h");
    for (int position : {5, -1, 4}) { // none, none, and sent already
        mWorker->updatePaserGpsDataPosition(position);
        mWorker->updateAllGpsData();
        expect("7: 5, to 14 km/h");
    }

    QSignalSpy finished(mWorker.get(), &QThread::finished);
    mWorker->stopParserGpsData();
    QVERIFY(finished.wait(PatienceMs));
    mWorker->updatePaserGpsDataPosition(3);
    QVERIFY(mWorker->isFinished());
    mWorker->updateAllGpsData(); // starts it again
    expect("7: 640 wide");
    expect("7: 5, to 14 km/h");
    expect("7: #3 13 km/h");
}

void TestVideoParser::startEndsThePassBefore()
{
    mWorker->updateAllGpsData(); // starts the worker, which has no recording yet
    expect("0: 0 wide");
    expect("0: 0, to 0 km/h");
    QVERIFY(!mInfo.createDate.isValid());

    int ticks = 0;
    QTimer ticking;
    connect(&ticking, &QTimer::timeout, this, [&ticks] { ++ticks; });
    ticking.start(0);
    QSignalSpy finished(mWorker.get(), &QThread::finished);
    mWorker->start(recording("plain.mp4", 0), 7, 0);
    QCOMPARE(finished.count(), 1);
    QVERIFY2(ticks > 1, qPrintable(QString::number(ticks))); // again and again, not once at the end
    mWorker->updatePaserGpsDataPosition(1);                  // which the recording does not have
    expect("7: 640 wide");
    mWorker->updateAllGpsData();
    expect("7: 0, to 0 km/h");

    mWorker->start(recording("second.mp4", 5, 1280), 8, 0);
    expect("8: 1280 wide");
    mWorker->updateAllGpsData();
    expect("8: 5, to 14 km/h");
    ticks = 0;
    mWorker.reset(); // ends the thread, while the application goes on
    QCOMPARE(finished.count(), 3);
    QVERIFY(ticks > 0);
    // The position ended with the pass that it was meant for.
    QCOMPARE(mReports, QStringList());
}

/** All that may read at once are held up as they report. */
void TestVideoParser::readsFewAtATime()
{
    const QUrl url = recording("ride.mp4");
    QSemaphore entered;
    QSemaphore goOn;
    std::vector<std::unique_ptr<VideoParser>> readers(VideoParser::MaxOpenRecordings);
    for (auto &reader : readers) {
        reader = std::make_unique<VideoParser>();
        const auto holdUp = [&] { entered.release(), goOn.acquire(); };
        connect(reader.get(), &VideoParser::videoInfoChanged, reader.get(), holdUp,
                Qt::DirectConnection);
        reader->start(url, 1, 0);
    }
    const QSemaphoreReleaser atTheLatest(goOn, VideoParser::MaxOpenRecordings);
    QTRY_COMPARE(entered.available(), VideoParser::MaxOpenRecordings);

    QSignalSpy finished(mWorker.get(), &QThread::finished);
    mWorker->start(url, 7, 0);
    QTRY_VERIFY(mWorker->isRunning());
    mWorker->stopParserGpsData();
    QVERIFY(finished.wait(PatienceMs));
    QCOMPARE(mReports, QStringList()); // its turn had not come

    mWorker->start(url, 8, 0);
    QTRY_VERIFY(mWorker->isRunning());
    mWorker->updateAllGpsData(); // needs no turn
    expect("8: 640 wide");
    expect("8: 5, to 14 km/h");

    mWorker->start(url, 9, 0);
    goOn.release(VideoParser::MaxOpenRecordings);
    expect("9: 640 wide");
    for (auto &reader : readers)
        reader->stopParserGpsData();
}

void TestVideoParser::waitsForDescriptors_data()
{
    QTest::addColumn<bool>("come");
    QTest::addColumn<bool>("isStopped");
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("given back") << true << false
                                << QStringList({"7: 640 wide", "7: 5, to 14 km/h"});
    QTest::newRow("never") << false << false << QStringList({"7: 0 wide", "7: 0, to 0 km/h"});
    QTest::newRow("stopped meanwhile") << false << true << QStringList("7: 0 wide");
}

void TestVideoParser::waitsForDescriptors()
{
    QFETCH(bool, come);
    QFETCH(bool, isStopped);
    QFETCH(QStringList, reports);
    const QUrl url = recording("ride.mp4");
    NoDescriptors none;
    const LineWatch refusals("Mp4Parser open file error", [&] {
        if (come)
            none.giveBack();
        if (isStopped)
            mWorker->stopParserGpsData();
    });
    mWorker->start(url, 7, 0);
    QTRY_VERIFY(refusals.count > 0);
    if (isStopped)
        QTRY_VERIFY(mWorker->isFinished());
    else
        mWorker->updateAllGpsData();
    QTRY_COMPARE(mReports, reports);
    QCOMPARE(refusals.count == 1, come || isStopped);
}

void TestVideoParser::stoppedWalkEnds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QByteArray zeros(200000, '\0');
    const QByteArray sounds = Avi::soundChunk("").repeated(1000);
    QTest::newRow("boxes") << "a.mp4" << Mp4::box("free").repeated(1000);
    QTest::newRow("zeros") << "a.mp4" << zeros;
    QTest::newRow("no AVI header") << "a.avi" << Avi::riff(zeros);
    QTest::newRow("chunks") << "a.avi"
                            << Avi::riff(Avi::list("hdrl", Avi::mainHeader(1, 1, 1, 1)) +
                                         Avi::list("movi", sounds));
}

/** A walk that does not look whether it is still wanted reports what it has found. */
void TestVideoParser::stoppedWalkEnds()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QVERIFY(saveRecording(mDir.filePath(name), content));
    mWorker->start(QUrl::fromLocalFile(mDir.filePath(name)), 7, 0);
    mWorker->stopParserGpsData();
    QTRY_VERIFY(mWorker->isFinished());
    QCoreApplication::processEvents();
    QCOMPARE(mReports, QStringList());
}

void TestVideoParser::stoppedDecodingEnds()
{
    TelemetryBlock bad;
    bad.gsensorX = "?000";
    RecordingWriter writer;
    writer.setTelemetry(1, {bad, bad, bad});
    QVERIFY(writer.save(mDir.filePath("bad.mp4")));
    const LineWatch samples("gsensor data error", [this] { mWorker->stopParserGpsData(); });
    mWorker->start(QUrl::fromLocalFile(mDir.filePath("bad.mp4")), 7, 0);
    QTRY_VERIFY(mWorker->isFinished());
    QCOMPARE(int(samples.count), 1);
}

QTEST_GUILESS_MAIN(TestVideoParser)
#include "tst_videoparser.moc"
