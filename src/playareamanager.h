// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playerwidget.h"

#include <QElapsedTimer>
#include <QMediaContent>
#include <QMediaPlayer>
#include <QTimer>
#include <QWidget>

class QHBoxLayout;
class QKeyEvent;
class QMimeData;
struct RowData;
struct ScreenshotResult;

/**
 * The area that shows the video: one player for the main recording, and a second one beside it
 * while the main recording has a related one from the other camera. Commands go to both; the
 * second is always muted and is kept in step with the first.
 *
 * Rows are not owned; they must outlive their use here. GUI thread only.
 */
class PlayAreaManager : public QWidget
{
    Q_OBJECT

public:
    explicit PlayAreaManager(QWidget *parent = nullptr);
    ~PlayAreaManager() override;

    /** 1 or 2 players; any other number changes nothing. */
    void setPlayerNum(int num);
    /** Loads the recordings without starting them. @p related must not be null with two players. */
    void setResourceData(const RowData *main, const RowData *related);

    /** Takes the recording away from a player that has one, so that nothing of it is still under
     *  way when the next one is loaded; the rows stay set. Returns false when none is left. One at
     *  a time, as each keeps the window waiting for some 50 ms. */
    bool unloadOne();
    /** Whether the media backend has done its work on what was loaded. Loading something else
     *  before that may make it abort the program. */
    bool isSettled() const;

    /** Lets go of the rows, before their owner destroys them. */
    void forgetRows();
    /** Ends a player's full screen, if there is one. */
    void leaveFullScreen();
    /** Whether a player's picture fills the screen. */
    bool isPictureFullScreen() const;
    /** Ends a player's full screen, or else fills the screen with the main recording. */
    void toggleFullScreen();

    /** Shows the picture so many frames after the present one, or before it if negative, of the
     *  paused recording. One that plays is only paused. */
    void stepFrames(int frames);
    /** To a position within the recording, playing or paused as before. */
    void seekToMs(qint64 positionMs) { seekBoth(positionMs); }
    /** From the beginning, playing or paused as before. */
    void seekToStart();
    /** Pauses shortly before the end, which would start the next recording. */
    void seekToEnd();

    /** The row of the main recording, null until one has been set. */
    const RowData *mainRow() const { return mMainRow; }
    /** The row of the second player's recording, null until one has been set. */
    const RowData *relatedRow() const { return mRelatedRow; }
    /** Media, state and volume (0 to 100, linear) of the main player. The media are those of the
     *  main row even if the player has been given none. */
    QMediaContent media() const;
    QMediaPlayer::State state() const;
    int volume() const;

    /** The widgets of both players, for looking at what they show; the second may be null. */
    PlayerWidget *mainPlayer() const { return mMain; }
    PlayerWidget *secondPlayer() const { return mSecond; }

    /** Whether a path or URL text ends like a recording: mp4, mov or avi in any case. */
    static bool isRecordingName(const QString &text);

signals:
    // Relayed from the main player; the duration is in milliseconds.
    void stateChanged(QMediaPlayer::State newState);
    void volumeChanged(int volume);
    void mutedChanged(bool muted);
    void durationChanged(qint64 duration);
    /** On every report of the main player: its position in whole seconds, and its row. */
    void positionChanged(qint64 second, int rowId);
    // Relayed from either player.
    void keyPressSignals(QKeyEvent *event);
    void otherKeyPressed(QKeyEvent *event);
    void fullScreenChanged(bool fullScreen);
    void screenshotDone(const ScreenshotResult &result);
    /** One dropped recording, as URL text. */
    void dropFile(const QString &filePath);
    /** The main recording has been played to its end. */
    void ended();
    /** The main recording cannot be played. Nothing plays then. */
    void failed();
    /** The related recording cannot be played. The main one is, without it. */
    void secondFailed();
    /** isSettled() has become true. */
    void settled();

public slots:
    void play();
    void pause();
    void stop();
    void seek(int seconds);
    void setVolume(int volume);
    void setMuted(bool muted);
    void setPlaybackRate(double rate);
    /** Has an image made of what each player shows; without a main row nothing happens. */
    void screenshot();
    void update();
    /** Pauses while the seek slider is held; on release seeks to @p seconds and plays on. */
    void onSliderStatusChanged(bool isSliderDown, int seconds);
    void onPositionChanged(qint64 position);

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    static QStringList droppedRecordings(const QMimeData &data);

    void createLayouts();
    void relayMainPlayer();
    void relayPosition(qint64 positionMs);
    void onMainLoaded();
    void onMainFailed();
    void noteSettled();
    void noteSecondPosition(qint64 positionMs);
    void onSecondEnded();
    void relayKeysAndFullScreen(PlayerWidget *player);
    void addToLayout(PlayerWidget *player);
    void createSecond();
    void destroySecond();
    void nudgeGeometry();

    qint64 secondEndMs() const;
    bool secondHasSomethingAt(qint64 positionMs) const;
    void playSecond();
    qint64 shownFrame(double stepMs) const;
    void seekBoth(qint64 positionMs);
    void seekMain(qint64 positionMs);
    void seekSecond(qint64 positionMs);
    void repeatLostSeeks();
    void freeIfStuck(qint64 mainMs);
    void holdSyncFor(qint64 settleMs);
    void keepInStep();
    void rejoin(qint64 mainMs);
    void correctSecond(qint64 mainMs);
    void learnSeekLag(qint64 aheadMs);

    QHBoxLayout *mPlayersLayout = nullptr;
    PlayerWidget *mMain = nullptr;   // a child, never null
    PlayerWidget *mSecond = nullptr; // a child, deleted by hand when one player is enough
    const RowData *mMainRow = nullptr;
    const RowData *mRelatedRow = nullptr;
    bool mNudgePending = false;
    bool mNudgeGrows = true;
    bool mSecondWaits = false; // to be played as soon as the main recording has been loaded
    int mRound = 0;            // loads and stops

    // Keeping in step: nothing is measured before the players have settled after a command.
    QElapsedTimer mSinceCommand;
    qint64 mSettleMs = 0;
    int mReportsOff = 0;
    // At the last report since then, -1 before the first: one that stands is given its time.
    qint64 mMainSeenMs = -1;
    qint64 mSecondSeenMs = -1;
    qint64 mSeekLagMs = 0;
    bool mCorrectionPending = false;

    // How long the main player has been standing while it should play.
    QElapsedTimer mStanding;
    qint64 mStandsAtMs = -1;
    int mReportsMoved = 0; // in a row
    int mRestarts = 0;     // since it moved for a while

    // The last seek, until it is certain that both players have made it.
    QTimer mSeekCheck;
    qint64 mSoughtMs = 0;

    // Where the second recording really ended: one cut short ends before its header says.
    qint64 mSecondPositionMs = 0;
    qint64 mSecondEndMs = 0; // 0 until it has ended
};
