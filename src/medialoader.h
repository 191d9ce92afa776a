// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playbackproblem.h"

#include <QElapsedTimer>
#include <QMediaPlayer>
#include <QObject>
#include <QTimer>

/**
 * Gives a media player its recordings, and knows what became of them: a recording is being loaded,
 * has been loaded, or has failed. One that has failed stays so until the next one; playing it again
 * would only make the backend try anew.
 *
 * The backend loads asynchronously, and is best left alone meanwhile: it may abort the program when
 * it is given other media before it has settled.
 *
 * The player is not owned and must live longer. GUI thread only.
 */
class MediaLoader : public QObject
{
    Q_OBJECT

public:
    explicit MediaLoader(QMediaPlayer *player, QObject *parent = nullptr);

    /** Hands the recording to the player. Null media have failed at once; so has all that is not a
     *  local recording complete in itself (RecordingContainer), which the player never gets: it
     *  might call a server for it. */
    void load(const QMediaContent &media);
    /** Takes the recording away from the player, which then shows nothing. Whether it had failed
     *  is still known. */
    void unload();

    /** Plays a recording that is loaded or being loaded. One that is still being loaded after some
     *  seconds has failed. */
    void play();
    void pause();
    /** Stops, whatever was asked for just before. */
    void stop();

    /** Loads the recording anew and plays on from where it is: the way out for a backend that has
     *  got stuck. */
    void restart();

    /** Whether the backend is still at work on the recording. */
    bool isLoading() const;
    /** Whether there is a recording that can be shown. */
    bool isLoaded() const;
    bool hasFailed() const { return mHasFailed; }
    /** What is known of a failure, once there is one. */
    const PlaybackFailure &failure() const { return mFailure; }

signals:
    void loaded();
    /** The recording cannot be played, its sound alone apart. The player has been stopped. */
    void failed();
    /** The recording has been played to its end. */
    void ended();
    /** The backend has done its work, whatever came of it. */
    void settled();

private:
    void onMediaStatusChanged(QMediaPlayer::MediaStatus status);
    void stopAgain();
    void cancelTimers();
    void giveUp();
    bool lacksDecoder() const;
    bool lacksPictures() const;
    void giveUpPictures();
    void goOn();
    void fail();

    QMediaPlayer *mPlayer = nullptr;
    QElapsedTimer mSincePlay;
    QTimer mStopAgain;
    QTimer mRestart;
    QMediaContent mRestartMedia;
    qint64 mRestartMs = 0;
    QTimer mPatience;       // with a recording that is played before it has been loaded
    QTimer mGiveUpPictures; // when the backend is done with telling of them
    bool mHasFailed = false;
    PlaybackFailure mFailure;
};
