// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviwriter.h"
#include "recordingwriter.h"
#include "videoparser.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

/** Receives as the playlist does: in the thread of the application, by queued copies. */
class TestVideoParser : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reportsRecordings();
    void servesUntilStopped();
    void startEndsThePassBefore();

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
    QVERIFY(finished.wait());
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
    ticking.start(20);
    QSignalSpy finished(mWorker.get(), &QThread::finished);
    QElapsedTimer timer;
    timer.start();
    mWorker->start(recording("plain.mp4", 0), 7, 0);
    QCOMPARE(finished.count(), 1);
    QVERIFY2(ticks >= timer.elapsed() / 100, qPrintable(QString::number(ticks)));
    mWorker->updatePaserGpsDataPosition(1); // which the recording does not have
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

QTEST_GUILESS_MAIN(TestVideoParser)
#include "tst_videoparser.moc"
