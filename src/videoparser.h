// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "recordingcondition.h"
#include "videoinfo.h"

#include <QList>
#include <QThread>
#include <QUrl>

#include <atomic>
#include <memory>

class ParserObject;
class QSemaphoreReleaser;

/**
 * The parse worker of one playlist row. Its thread opens the recording, reports the VideoInfo,
 * decodes every telemetry sample, closes the recording, and then serves: the whole list once when
 * asked for it, and the sample of the player's position whenever that changes.
 *
 * Playlists may be longer than a process may have files: a worker holds a descriptor only while it
 * reads, and no more than MaxOpenRecordings of them read at once. One that has been asked for its
 * list, because it is to be played, does not wait for the others.
 *
 * The public operations belong to the thread that owns the object (the GUI thread); the signals
 * come from the worker's own thread, so receivers elsewhere get them queued, by value. Requests
 * are plain flags that the worker polls, at the latest every 800 ms; there is no lock.
 */
class VideoParser : public QThread
{
    Q_OBJECT

public:
    /** As many recordings are read at once, not counting those that have been asked for. More
     *  would be done no sooner, and would take the processor from window and playback. */
    static constexpr int MaxOpenRecordings = 4;

    /** Registers the meta-types that cross threads. */
    explicit VideoParser(QObject *parent = nullptr);
    /** Ends the pass and waits for it while processing application events. */
    ~VideoParser() override;

    /**
     * Starts a pass over the recording after @p delay milliseconds. A pass still running is ended
     * first; application events are processed until it has. The whole list is sent only after
     * updateAllGpsData(). Where the system has no thread left, a warning is all that comes of it.
     */
    void start(const QUrl &url, int id, int delay);
    /** Asks for the sample with this index; one that does not exist is never sent. */
    void updatePaserGpsDataPosition(int index);
    /** Asks for the whole list, in a new pass if none is running. Without a thread the answer is an
     *  empty list, from the event loop. */
    void updateAllGpsData();
    /** Tells the pass to end, without waiting for it. */
    void stopParserGpsData();

signals:
    /** Once a pass, as soon as the container has been walked; not if the pass was told to end
     *  before a long walk had. */
    void videoInfoChanged(int id, VideoInfo info);
    /** What is known of the file itself: right after videoInfoChanged(), and again in the same
     *  pass when its telemetry has become known. Without a thread, from the event loop. */
    void conditionChanged(int id, RecordingCondition condition);
    void gpsDataChanged(int id, GpsData sample);
    void allGpsDataParserFinished(int id, const QList<GpsData> &list);

protected:
    void run() override;

private:
    void launch();
    void answerWithoutThread();
    void readRecording();
    bool awaitTurn(QSemaphoreReleaser &turn) const;
    std::unique_ptr<ParserObject> openWalker() const;
    void decodeAll(ParserObject &walker, RecordingCondition &condition);
    void tellTelemetry(RecordingCondition &condition, RecordingCondition::Telemetry telemetry);
    void serve();
    void waitForEnd();

    std::atomic<bool> running{false};
    std::atomic<bool> sendAll{false};
    bool delayed = false; ///< a plain record of the last start(); nothing reads it
    int id = 0;
    QUrl url;
    std::atomic<int> position{-1}; ///< index of the sample wanted next, -1 for none
    QList<GpsData> gpsList;        ///< written by the worker's thread only
};
