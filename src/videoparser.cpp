// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "videoparser.h"

#include "fix.h"
#include "noeventdispatcher.h"
#include "recordingcheck.h"
#include "recordingwalker.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSemaphore>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int PollingPeriodMs = 800;
// While waiting for the thread, events are processed this often.
constexpr int WaitStepMs = 5;
// While waiting for its turn to read, a worker looks this often whether it is still to.
constexpr int TurnStepMs = 100;
// Descriptors that others in the process have used up are waited for as long as a user would.
constexpr int MaxOpenTries = 20;
constexpr int OpenRetryMs = 100;
// The walkers nest as deep as the boxes they know, and keep their tables on the heap. The usual
// megabytes for each of some thousand threads would use up the addresses of smaller systems.
constexpr uint StackSize = 256 * 1024;

QSemaphore &readingTurns()
{
    static QSemaphore turns(VideoParser::MaxOpenRecordings);
    return turns;
}

bool lacksDescriptors(const ParserObject &walker)
{
    return walker.file.error() == QFileDevice::ResourceError;
}

} // namespace

VideoParser::VideoParser(QObject *parent) : QThread(parent)
{
    qRegisterMetaType<VideoInfo>("VideoInfo");
    qRegisterMetaType<RecordingCondition>("RecordingCondition");
    qRegisterMetaType<GpsData>("GpsData");
    qRegisterMetaType<QList<GpsData>>("QList<GpsData>");
    setStackSize(StackSize);
}

VideoParser::~VideoParser()
{
    stopParserGpsData();
    waitForEnd();
    wait();                   // for the very end, where a thread deletes its dispatcher
    delete eventDispatcher(); // of a thread that could not be started
}

void VideoParser::start(const QUrl &newUrl, int newId, int delay)
{
    stopParserGpsData();
    waitForEnd();
    url = newUrl;
    id = newId;
    delayed = delay != 0;
    running.store(true, std::memory_order_relaxed);
    QTimer::singleShot(delay, this, [this] { launch(); });
}

void VideoParser::updatePaserGpsDataPosition(int index)
{
    position.store(index, std::memory_order_relaxed);
}

void VideoParser::updateAllGpsData()
{
    sendAll.store(true, std::memory_order_relaxed);
    if (isRunning())
        return;
    // Without this the new pass would end before it has sent anything.
    running.store(true, std::memory_order_relaxed);
    launch();
}

void VideoParser::stopParserGpsData()
{
    running.store(false, std::memory_order_relaxed);
}

void VideoParser::launch()
{
    if (isRunning())
        return;
    wait(); // for the very end of a pass, which takes its dispatcher along
    if (!eventDispatcher())
        setEventDispatcher(new NoEventDispatcher);
    QThread::start();
    if (!isRunning() && !isFinished())
        answerWithoutThread();
}

void VideoParser::answerWithoutThread()
{
    qWarning() << "no thread to read the recording with, row:" << id << url.fileName();
    const auto judge = [this, row = id] {
        emit conditionChanged(row, checkRecording(url.toLocalFile()));
    };
    QMetaObject::invokeMethod(this, judge, Qt::QueuedConnection);
    if (sendAll.exchange(false, std::memory_order_relaxed)) {
        const auto answer = [this, row = id] { emit allGpsDataParserFinished(row, {}); };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    }
}

void VideoParser::run()
{
    readRecording();
    serve();
    position.store(-1, std::memory_order_relaxed);
    qDebug() << "end run" << id;
}

/** Opens the recording and closes it again: rows that merely serve cost no descriptor. */
void VideoParser::readRecording()
{
    QSemaphoreReleaser turn;
    if (!awaitTurn(turn))
        return;
    const std::unique_ptr<ParserObject> walker = openWalker();
    RecordingCondition condition;
    if (!walker->wasCutShort()) {
        emit videoInfoChanged(id, videoInfoOf(*walker));
        condition = checkRecording(walker->file);
        if (walker->gpsFormat == ParserObject::NoTelemetry)
            condition.telemetry = RecordingCondition::NoTelemetry;
        emit conditionChanged(id, condition);
    }
    decodeAll(*walker, condition);
}

/** Returns false if the pass was told to end while it waited. */
bool VideoParser::awaitTurn(QSemaphoreReleaser &turn) const
{
    while (!sendAll.load(std::memory_order_relaxed)) {
        if (readingTurns().tryAcquire(1, TurnStepMs)) {
            turn = QSemaphoreReleaser(readingTurns());
            return true;
        }
        if (!running.load(std::memory_order_relaxed))
            return false;
    }
    return true; // the row is to be played
}

std::unique_ptr<ParserObject> VideoParser::openWalker() const
{
    std::unique_ptr<ParserObject> walker = createWalker(url.toLocalFile(), &running);
    for (int tries = 1; tries < MaxOpenTries && lacksDescriptors(*walker) &&
                        running.load(std::memory_order_relaxed);
         ++tries) {
        msleep(OpenRetryMs);
        walker = createWalker(url.toLocalFile(), &running);
    }
    return walker;
}

void VideoParser::decodeAll(ParserObject &walker, RecordingCondition &condition)
{
    gpsList.clear();
    GpsData sample;
    int i = 0;
    for (; running.load(std::memory_order_relaxed) && walker.getGpsData(i, sample); ++i) {
        gpsList.append(sample);
        if (isFromCamera(sample))
            tellTelemetry(condition, RecordingCondition::HasTelemetry);
    }
    if (running.load(std::memory_order_relaxed))
        tellTelemetry(condition, RecordingCondition::NoTelemetry);
}

/** The first word is the last one. */
void VideoParser::tellTelemetry(RecordingCondition &condition,
                                RecordingCondition::Telemetry telemetry)
{
    if (condition.telemetry != RecordingCondition::TelemetryUnknown)
        return;
    condition.telemetry = telemetry;
    emit conditionChanged(id, condition);
}

void VideoParser::serve()
{
    int sent = -1;
    while (running.load(std::memory_order_relaxed)) {
        if (sendAll.exchange(false, std::memory_order_relaxed))
            emit allGpsDataParserFinished(id, gpsList);
        const int wanted = position.load(std::memory_order_relaxed);
        if (wanted == sent || wanted < 0 || wanted >= gpsList.size()) {
            msleep(PollingPeriodMs);
        } else {
            emit gpsDataChanged(id, gpsList.at(wanted));
            sent = wanted;
        }
    }
}

void VideoParser::waitForEnd()
{
    while (isRunning() && !wait(WaitStepMs)) {
        QCoreApplication::processEvents();
        stopParserGpsData(); // an event may have asked for the list, and so for another pass
    }
}
