// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "videoparser.h"

#include "aviparser.h"
#include "mp4parser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTimer>

namespace {

constexpr int PollingPeriodMs = 800;
// While waiting for the thread, events are processed this often.
constexpr int WaitStepMs = 5;

VideoInfo videoInfoOf(const ParserObject &walker)
{
    VideoInfo info;
    info.width = walker.width;
    info.height = walker.height;
    info.duration = walker.duration;
    info.frameRate = walker.frameRate;
    info.createDate = walker.createDate;
    info.decodeType = walker.decodeType;
    return info;
}

} // namespace

VideoParser::VideoParser(QObject *parent) : QThread(parent)
{
    qRegisterMetaType<VideoInfo>("VideoInfo");
    qRegisterMetaType<GpsData>("GpsData");
    qRegisterMetaType<QList<GpsData>>("QList<GpsData>");
}

VideoParser::~VideoParser()
{
    stopParserGpsData();
    waitForEnd();
}

void VideoParser::start(const QUrl &newUrl, int newId, int delay)
{
    stopParserGpsData();
    waitForEnd();
    url = newUrl;
    id = newId;
    delayed = delay != 0;
    running.store(true, std::memory_order_relaxed);
    QTimer::singleShot(delay, this, [this] { QThread::start(); });
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
    QThread::start();
}

void VideoParser::stopParserGpsData()
{
    running.store(false, std::memory_order_relaxed);
}

void VideoParser::run()
{
    std::unique_ptr<ParserObject> walker = createWalker();
    if (!walker->wasCutShort())
        emit videoInfoChanged(id, videoInfoOf(*walker));
    decodeAll(*walker);
    serve();
    position.store(-1, std::memory_order_relaxed);
    walker.reset();
    qDebug() << "end run" << id;
}

std::unique_ptr<ParserObject> VideoParser::createWalker() const
{
    const QString fileName = url.toLocalFile();
    if (fileName.endsWith(QLatin1String(".AVI"), Qt::CaseInsensitive))
        return std::make_unique<AVIParser>(fileName, nullptr, &running);
    return std::make_unique<Mp4Parser>(fileName, nullptr, &running);
}

void VideoParser::decodeAll(ParserObject &walker)
{
    gpsList.clear();
    GpsData sample;
    for (int i = 0; running.load(std::memory_order_relaxed) && walker.getGpsData(i, sample); ++i)
        gpsList.append(sample);
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
