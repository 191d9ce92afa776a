// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QMediaPlayer>
#include <QObject>
#include <QVector>

class ControlPanel;
class FComboBox;
class MainWindows;
class PendingStart;
class PlayAreaManager;
class PlaylistModel;
class QTableView;
class QUrl;
struct RowData;

/**
 * What can be asked and told of playback without the mouse: by the media keys of a keyboard or a
 * headset, and by other programs. Every command goes the road of its button in the control bar, so
 * that it does what a click would do, and the bar shows it. It finds the parts under the window by
 * their type.
 *
 * Nothing that a caller passes does harm, whatever its value. The window must outlive it. GUI
 * thread only.
 */
class PlaybackRemote : public QObject
{
    Q_OBJECT

public:
    explicit PlaybackRemote(MainWindows *window, QObject *parent = nullptr);

    QMediaPlayer::State state() const;
    /** The recording that is played, is to be played next, or was played last: the one that
     *  previous and next are counted from. Null without any. Owned by the playlist. */
    const RowData *recording() const;
    /** 0 while stopped. */
    qint64 positionMs() const;
    /** Of recording(), in whole seconds until it has been loaded; 0 while it is unknown. */
    qint64 durationMs() const;
    /** The rates that can be chosen, ascending; 1 is normal speed. */
    QVector<double> rates() const;
    double rate() const;
    /** How far the volume's handle has gone, 0 to 1; the sound may be off all the same. */
    double volume() const;

    bool canPlay() const;
    bool canPause() const;
    bool canSeek() const;
    bool canGoNext() const;
    bool canGoPrevious() const;

    /** Resumes, or else plays the recording selected in the list. Nothing while playing. */
    void play();
    void pause();
    void playOrPause();
    void stop();
    /** Stops at the end of the list. */
    void next();
    void previous();
    /** Nothing while stopped or beyond the recording. */
    void seekTo(qint64 positionMs);
    /** To the beginning at most; a target beyond the end is the next recording. */
    void seekBy(qint64 offsetMs);
    /** Chooses the rate that comes closest. 0 pauses; what is beyond the list changes nothing. */
    void setRate(double rate);
    /** Kept within 0 and 1. The sound stays on or off. */
    void setVolume(double volume);
    /** Adds a recording or a folder that is on this computer to the list, and plays. Returns false,
     *  and does nothing, for all else. */
    bool open(const QUrl &url);
    /** Brings the window to the front. */
    void raise();

signals:
    /** Something of the above may have changed, but for the position. */
    void changed();
    /** The position is not where playing, or standing still, would have brought it. */
    void jumped(qint64 positionMs);

private:
    void watch();
    void noteState();
    void notePosition(qint64 positionMs);

    MainWindows *mWindow;
    ControlPanel *mPanel;
    FComboBox *mRates;
    PlayAreaManager *mArea;
    PlaylistModel *mPlaylist;
    QTableView *mList;
    PendingStart *mPendingStart;

    qint64 mSeenMs = -1; // the position last seen; -1 while stopped
    QElapsedTimer mSinceSeen;
};
