// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>

#include <atomic>

#include "screenshotresult.h"

/**
 * Makes still images of a recording: for each queued position it runs the ffmpeg beside the
 * executable, which decodes one picture and writes it as a JPEG into the screenshot folder of the
 * settings. There "~" is the home folder; for one that is empty or relative the default serves.
 *
 * The object belongs to the GUI thread, on which it is made, given tasks and deleted; the tool is
 * started and awaited on the worker's own thread, so that the window never waits. Deleting it drops
 * the tasks that wait, and ends the tool when it goes on for more than three seconds.
 */
class CaptureThread : public QThread
{
    Q_OBJECT

public:
    explicit CaptureThread(QObject *parent = nullptr);
    ~CaptureThread() override;

    /** Queues an image of @p file, a local path, at @p position in milliseconds. Tasks that wait
     *  for another file are dropped. May be called while the thread runs; does not start it. A
     *  negative position is never captured: it ends the thread, with later tasks still queued. */
    void addTask(const QString &file, qint64 position);

    /** Makes the worker its own owner, when the one that it had goes: it is deleted when it has
     *  done its tasks, or at the end of the application. */
    void runUnattended();

signals:
    /** What has become of a task, or of all of them when there is no folder. Emitted on the
     *  worker's thread; not any more once the worker is being deleted. */
    void captured(const ScreenshotResult &result);

protected:
    void run() override;

private:
    struct Task
    {
        QString videoFile;
        qint64 positionMs;
    };

    Task takeTask();
    void capture(const Task &task, const QString &folder);

    std::atomic<bool> mIsWanted{true}; // the image that is being made
    QMutex mMutex;                     // guards the two below, never while the tool runs
    QString mVideoFile;
    QList<qint64> mPositionsMs;
};
