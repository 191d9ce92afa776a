// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paceobserver.h"

#include <QElapsedTimer>
#include <QMediaPlayer>
#include <QObject>
#include <QTimer>
#include <QVideoProbe>

class PlayAreaManager;

/**
 * Tells the user, in the picture's place, why there is none: the recording cannot be played, and
 * why, or its telemetry is still being read. Each player tells of its own recording. Once for each
 * recording it also tells when the computer is too slow for it.
 *
 * The play area is not owned and must live longer. GUI thread only.
 */
class PlaybackNotices : public QObject
{
    Q_OBJECT

public:
    explicit PlaybackNotices(PlayAreaManager *area, QObject *parent = nullptr);

public slots:
    /** A recording is to be started. What was told of the one before goes. */
    void begin();
    /** The recording waits for its telemetry, which is told if it takes long. */
    void awaitTelemetry();
    /** Nothing is played any more. */
    void end();
    /** Tells the reasons anew: in another language, or because more is known of the files. */
    void refresh();

private:
    void tellReading();
    void tellMainProblem();
    void tellSecondProblem();
    void onStateChanged(QMediaPlayer::State state);
    void onPositionChanged();

    PlayAreaManager *mArea = nullptr;
    QTimer mReading;
    QVideoProbe mPictures;
    PaceObserver mPace;
    QElapsedTimer mClock;
    bool mIsNew = false; // nothing of the recording has been played yet
};
